#include "render/Renderer.h"

#include "render/CanvasStrips.h"
#include "render/ColorSpace.h"
#include "render/Framebuffers.h"
#include "render/GlObject.h"
#include "render/GradientRamps.h"
#include "render/PictureFinish.h"
#include "render/PictureTiles.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"
#include "render/PlanetList.h"
#include "render/PlanetShaders.h"
#include "render/PlanetUniforms.h"
#include "render/ShaderProgram.h"
#include "render/SurfaceTextures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace orrery {
namespace render {
namespace {

constexpr GLuint kDrawnPixelsAttribute = 3;
constexpr int kRampUnit = 0;
constexpr int kSurfaceUnit = 1;
constexpr int kNeededGlVersion = 33;
// A frame of a spread redraw takes in this many nodes of the scene for each planet it draws.
constexpr std::size_t kNodesPerPlanetDrawn = 5;
// Pictures larger than this a side are drawn in tiles: what they need beyond the picture
// itself stays the same, whatever their size.
constexpr int kPictureTileSide = 2048;

const char* glText(GLenum name) {
    const auto* text = reinterpret_cast<const char*>(glGetString(name));
    return text != nullptr ? text : "?";
}

// A planet shader and where its uniforms are; uniforms it does not use stay at -1, which
// OpenGL ignores.
struct PlanetProgram {
    GlObject program{GlObject::Kind::program};
    GLint projection = -1;
    GLint pixelAngle = -1;
    GLint viewport = -1;
    GLint tile = -1;
    GLint ndcToRay = -1;
    GLint lightPosition = -1;
    GLint lightColor = -1;
    GLint gradientRamps = -1;
    GLint surfaces = -1;
    GLint surfaceWidth = -1;
};

float largestPointSize() {
    GLfloat range[2] = {1.0f, 1.0f};
    glGetFloatv(GL_POINT_SIZE_RANGE, range);
    return range[1];
}

// Whether every sample of each ramp is opaque.
std::vector<bool> opaqueRows(const std::vector<std::uint8_t>& pixels) {
    std::vector<bool> opaque(kGradientRampCount, true);
    for (std::size_t i = 3; i < pixels.size(); i += 4)
        if (pixels[i] != 255)
            opaque[i / 4 / kGradientRampLength] = false;
    return opaque;
}

// A buffer of per-planet data that grows as needed, with room to spare so that adding
// planets one by one does not reallocate each time.
class GrowingBuffer {
public:
    void create() { buffer_.create(); }
    GLuint id() const { return buffer_.id(); }

    template <typename Item> void upload(const std::vector<Item>& items) {
        const std::size_t bytes = items.size() * sizeof(Item);
        glBindBuffer(GL_ARRAY_BUFFER, buffer_.id());
        if (bytes > capacity_) {
            capacity_ = bytes + bytes / 2;
            glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(capacity_), nullptr,
                         GL_DYNAMIC_DRAW);
        }
        if (bytes > 0)
            glBufferSubData(GL_ARRAY_BUFFER, 0, static_cast<GLsizeiptr>(bytes), items.data());
    }

private:
    GlObject buffer_{GlObject::Kind::buffer};
    std::size_t capacity_ = 0;
};

// What the planet data is made for: the scene as it stood, seen from an eye in a frame.
struct ViewOfPlanets {
    std::uint64_t sceneId = 0;
    std::uint64_t revision = 0;
    Vec3 eye;
    ScreenFrame frame;

    // The same scene seen the same way, whatever changed in it.
    bool sameViewAs(const ViewOfPlanets& other) const {
        return sceneId == other.sceneId && eye == other.eye &&
               frame.ndcToRayX == other.frame.ndcToRayX &&
               frame.ndcToRayY == other.frame.ndcToRayY && frame.width == other.frame.width &&
               frame.height == other.frame.height;
    }
    bool operator==(const ViewOfPlanets& other) const {
        return sameViewAs(other) && revision == other.revision;
    }
};

// Which part of the canvas a frame drew again: nothing, a part, or all of it.
struct DrawnArea {
    bool any = false;
    std::optional<PixelRect> part; // none: all of it
    bool marked = false;           // its soft pixels are marked in the stencil
};

} // namespace

// Everything the renderer keeps between frames. Planet data is brought up to date only when
// the scene (or the eye) changed: patched from the scene's list of changed planets where it
// can be, else rebuilt. The canvas keeps the planets as last drawn and is drawn again only
// where the planets changed, or whole when the view changed; its finished picture is
// finished again where the planets were drawn, and whole when the backdrop changed.
class RendererState {
public:
    explicit RendererState(SurfaceSource source) : surfaces(std::move(source)) {}

    bool build(std::string* error);
    bool render(const Scene& scene, const CameraProjection& camera, GLuint target, int width,
                int height, bool overBackdrop, std::string* error);
    void spreadRedraws(std::size_t planetsPerFrame) {
        strips.setPlanetsPerFrame(planetsPerFrame);
        nodesPerFrame = planetsPerFrame > 0 ? planetsPerFrame * kNodesPerPlanetDrawn
                                            : std::numeric_limits<std::size_t>::max();
    }
    bool drawsMore() const { return collecting.has_value() || !strips.empty(); }
    std::optional<Image> renderImage(const Scene& scene, const CameraProjection& camera, int width,
                                     int height, std::string* error, const PictureTiling& tiling);
    std::string description() const;
    void setBackdrop(const Image& backdrop);
    bool hasBackdrop() const { return finishing.hasBackdrop(); }

private:
    bool drawFrame(const Scene& scene, const CameraProjection& camera, int width, int height,
                   const PixelRect& tile, bool overBackdrop, bool spread, std::string* error);
    bool drewWithoutError(std::string* error);
    // Brings the planet data up to date; false while a rebuild spread over frames goes on.
    bool refreshPlanets(const Scene& scene, const CameraProjection& camera, int width, int height,
                        bool spread);
    void beginRebuild(const Scene& scene, const ViewOfPlanets& view);
    bool patchPlanets(const Scene& scene, const ScreenFrame& frame);
    void upload(const PlanetList::Pass& pass);
    DrawnArea drawPlanets(const CameraProjection& camera, int width, int height,
                          const PixelRect& tile, bool spread);
    DrawnArea clearForStrips(const std::optional<PixelRect>& part, const PixelRect& tile);
    void drawInstances(const std::vector<PlanetDraw>& planetDraws, std::size_t first,
                       std::size_t end, const std::optional<DrawnPixels>& everywhere, bool marks,
                       const PlanetUniforms& uniforms);
    void useProgram(const PlanetProgram& shader, const PlanetUniforms& uniforms);
    void pointAttributesAt(std::size_t first);

    // Plain tiny sprites are drawn as plain sprites: without textures the two are one.
    PlanetProgram& program(const PlanetDraw& draw) {
        const PlanetShape shape = !draw.textured && draw.shape == PlanetShape::tinySprite
                                      ? PlanetShape::sprite
                                      : draw.shape;
        return programs[static_cast<std::size_t>(shape)][draw.textured ? 1 : 0]
                       [draw.inPieces ? 1 : 0];
    }

    // [shape][textured][sprites in pieces]
    std::array<std::array<std::array<PlanetProgram, 2>, 2>, 3> programs;
    float pointSizeLimit = 1.0f;
    bool marksSoft = false; // the planet shaders leave soft pixels marked in the stencil
    PictureFinish finishing;
    // Quads are instances of four vertices; sprites are plain vertices, one per planet, as a
    // software renderer runs its vertex stage once per instance rather than for eight
    // vertices at a time.
    GlObject quadVertices{GlObject::Kind::vertexArray};
    GlObject spriteVertices{GlObject::Kind::vertexArray};
    GrowingBuffer instanceBuffer;
    GrowingBuffer pixelsBuffer; // the pixels each planet is drawn at
    GlObject gradientRamps{GlObject::Kind::texture};
    std::vector<bool> opaqueRamps;
    SurfaceTextures surfaces;
    Canvas canvas;

    PlanetList planets;
    std::vector<PlanetDraw> draws;
    std::optional<PixelBox> changedArea;
    // The parts of the canvas left for the frames to come, cleared until they are drawn.
    CanvasStrips strips;
    // What the canvas shows was drawn with these; none when it shows nothing to keep.
    std::optional<PlanetUniforms> canvasUniforms;
    // Whether the canvas's picture is finished over the backdrop; none when it is not finished.
    std::optional<bool> finishedOverBackdrop;
    // Where the canvas may hold soft colours; none: nowhere. And whether its stencil marks
    // them.
    std::optional<PixelRect> canvasSoft;
    bool canvasMarked = false;
    // The planets and draws of a pass over the whole canvas, kept while the planets are,
    // and of a part of it drawn again.
    PlanetList::Pass wholePass;
    std::optional<PixelRect> wholePassTile; // the tile it is for; none when not kept
    bool bufferHoldsWholePass = false;
    PlanetList::Pass partPass;
    std::optional<SceneLight> light;
    // The view the planet data is made for; none before the first.
    std::optional<ViewOfPlanets> planetsMadeFor;
    // A rebuild of the planet data taken in over several frames, for this view; and how many
    // nodes of the scene a frame takes in (a scene's nodes are taken in many times faster
    // than its planets are drawn).
    std::optional<ViewOfPlanets> collecting;
    std::size_t nodesPerFrame = std::numeric_limits<std::size_t>::max();
};

bool RendererState::build(std::string* error) {
    if (epoxy_gl_version() < kNeededGlVersion) {
        if (error != nullptr)
            *error = std::string("OpenGL 3.3 or later is needed; the context offers ") +
                     glText(GL_VERSION);
        return false;
    }
    marksSoft = epoxy_has_gl_extension("GL_ARB_shader_stencil_export");
    for (const PlanetShape shape :
         {PlanetShape::tinySprite, PlanetShape::sprite, PlanetShape::quad}) {
        for (const auto& [textured, inPieces] :
             {std::pair{false, false}, {true, false}, {false, true}, {true, true}}) {
            if ((!textured && shape == PlanetShape::tinySprite) ||
                (inPieces && shape == PlanetShape::quad))
                continue;
            PlanetProgram& shader = program({0, 0, textured, shape, false, inPieces});
            auto built = buildProgram(planetVertexShader(shape, inPieces),
                                      planetFragmentShader(shape, textured, marksSoft), error);
            if (!built)
                return false;
            shader.program = std::move(*built);
            const GLuint p = shader.program.id();
            shader.projection = glGetUniformLocation(p, "projection");
            shader.pixelAngle = glGetUniformLocation(p, "pixelAngle");
            shader.viewport = glGetUniformLocation(p, "viewport");
            shader.tile = glGetUniformLocation(p, "tile");
            shader.ndcToRay = glGetUniformLocation(p, "ndcToRay");
            shader.lightPosition = glGetUniformLocation(p, "lightPosition");
            shader.lightColor = glGetUniformLocation(p, "lightColor");
            shader.gradientRamps = glGetUniformLocation(p, "gradientRamps");
            shader.surfaces = glGetUniformLocation(p, "surfaces");
            shader.surfaceWidth = glGetUniformLocation(p, "surfaceWidth");
        }
    }
    pointSizeLimit = largestPointSize();
    if (!finishing.build(error))
        return false;

    instanceBuffer.create();
    pixelsBuffer.create();
    for (GlObject* vertices : {&quadVertices, &spriteVertices}) {
        vertices->create();
        glBindVertexArray(vertices->id());
        for (GLuint index = 0; index < 4; ++index) {
            glEnableVertexAttribArray(index);
            glVertexAttribDivisor(index, vertices == &quadVertices ? 1 : 0);
        }
        pointAttributesAt(0);
    }
    glBindVertexArray(0);

    const std::vector<std::uint8_t> rampPixels = gradientRampPixels();
    gradientRamps = makeGradientRampTexture(rampPixels);
    opaqueRamps = opaqueRows(rampPixels);
    return true;
}

bool RendererState::refreshPlanets(const Scene& scene, const CameraProjection& camera, int width,
                                   int height, bool spread) {
    const Vec3 eye = camera.eye();
    const ScreenFrame frame{camera.ndcToRayX(), camera.ndcToRayY(), width, height,
                            static_cast<double>(pointSizeLimit)};
    const ViewOfPlanets view{scene.id(), scene.revision(), eye, frame};
    if (collecting && !(*collecting == view)) {
        // The scene changed while it was being taken in: from the start again. The surfaces'
        // pass is begun again too, as the last list's layers may have moved.
        beginRebuild(scene, view);
    } else if (!collecting) {
        if (planetsMadeFor == view)
            return true;
        if (!planetsMadeFor || !planetsMadeFor->sameViewAs(view) || !patchPlanets(scene, frame))
            beginRebuild(scene, view);
    }
    if (collecting) {
        const std::size_t nodes = spread ? nodesPerFrame : std::numeric_limits<std::size_t>::max();
        if (!planets.continueRebuild(
                [this](const std::string& name) { return surfaces.layerOf(name); }, nodes))
            return false;
        collecting.reset();
        surfaces.endScene(largestSurfaceRadius(planets.instances(), frame));
    }
    light = findLight(scene.rootNode());
    if (planets.hasChanges()) {
        groupPlanetDraws(planets.instances(), frame, draws);
        changedArea = planets.takeChangedArea(draws);
        wholePassTile.reset();
    }
    planetsMadeFor = view;
    return true;
}

void RendererState::beginRebuild(const Scene& scene, const ViewOfPlanets& view) {
    surfaces.beginScene();
    planets.beginRebuild(scene.rootNode(), view.eye, view.frame);
    collecting = view;
}

// The planets changed since the last look, redone one by one; false when one needs what
// only a pass over the whole scene gives the surfaces (a new image or another level of
// detail), and the planets are to be rebuilt.
bool RendererState::patchPlanets(const Scene& scene, const ScreenFrame& frame) {
    const auto changes = scene.changesSince(planetsMadeFor->revision);
    if (!changes)
        return false;
    return planets.patch(scene.rootNode(), *changes,
                         [this](const std::string& name) { return surfaces.heldLayer(name); }) &&
           (!planets.hasChanges() ||
            surfaces.keepsDetailFor(largestSurfaceRadius(planets.instances(), frame)));
}

void RendererState::upload(const PlanetList::Pass& pass) {
    if (pass.asListed) {
        instanceBuffer.upload(planets.instances());
        return;
    }
    instanceBuffer.upload(pass.instances);
    pixelsBuffer.upload(pass.pixels);
}

DrawnArea RendererState::drawPlanets(const CameraProjection& camera, int width, int height,
                                     const PixelRect& tile, bool spread) {
    const PlanetUniforms uniforms =
        planetUniforms(camera, light, width, height, tile, surfaces.layerWidth());
    // A picture is drawn whole, strips left or not.
    if (!spread && !strips.empty())
        canvasUniforms.reset();
    // Drawn with other values, every pixel may differ; with the same, only where planets
    // changed, or the next strip left.
    std::optional<PixelRect> part;
    if (canvasUniforms == uniforms) {
        if (changedArea) {
            part = pixelsOf(*changedArea, width, height);
            if (part)
                part = overlapOf(*part, tile).value_or(PixelRect{tile.x, tile.y, 0, 0});
        } else {
            part = strips.next();
            if (!part)
                return {};
        }
    } else {
        strips.clear();
    }
    changedArea.reset();
    canvasUniforms = uniforms;

    glBindFramebuffer(GL_FRAMEBUFFER, canvas.planetsFramebuffer());
    glViewport(0, 0, tile.width, tile.height);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDepthMask(GL_TRUE);
    glStencilMask(0xFF);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClearDepth(1.0);
    glClearStencil(0);
    if (spread && strips.split(part.value_or(tile), planets.instances().size(), height))
        return clearForStrips(part, tile);
    const std::array<double, 16> projection = camera.matrix();
    const DepthFrame depthFrame{planetsMadeFor->frame, projection[10], projection[14]};
    if (part) {
        glEnable(GL_SCISSOR_TEST);
        glScissor(part->x - tile.x, part->y - tile.y, part->width, part->height);
        planets.passOver(*part, draws, depthFrame, opaqueRamps, partPass);
        upload(partPass);
        bufferHoldsWholePass = false;
        canvasSoft = unite(canvasSoft, partPass.soft);
    } else {
        glDisable(GL_SCISSOR_TEST);
        if (wholePassTile != tile)
            planets.passOver(tile, draws, depthFrame, opaqueRamps, wholePass);
        if (wholePassTile != tile || !bufferHoldsWholePass)
            upload(wholePass);
        wholePassTile = tile;
        bufferHoldsWholePass = true;
        canvasSoft = wholePass.soft;
    }
    // Planets drawn as listed are many small ones: marking costs more than it spares.
    const PlanetList::Pass& pass = part ? partPass : wholePass;
    const bool marks = marksSoft && !pass.asListed;
    canvasMarked = marks && (canvasMarked || !part);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    std::size_t first = 0;
    for (const auto& [band, end] : pass.bands) {
        const std::optional<PixelRect> cut = overlapOf(band, part.value_or(tile));
        if (cut) {
            glEnable(GL_SCISSOR_TEST);
            glScissor(cut->x - tile.x, cut->y - tile.y, cut->width, cut->height);
            // Planets drawn as listed are drawn over the whole area, cut by the scissor.
            const std::optional<DrawnPixels> everywhere =
                pass.asListed ? std::optional(DrawnPixels{static_cast<float>(band.x),
                                                          static_cast<float>(band.y),
                                                          static_cast<float>(band.x + band.width),
                                                          static_cast<float>(band.y + band.height)})
                              : std::nullopt;
            drawInstances(pass.draws, first, end, everywhere, marks, uniforms);
        }
        first = end;
    }
    glDisable(GL_SCISSOR_TEST);
    return {true, part, marks};
}

// The area is cleared now, and drawn strip by strip in the frames to come: nothing of it is
// soft, nor marked, until then.
DrawnArea RendererState::clearForStrips(const std::optional<PixelRect>& part,
                                        const PixelRect& tile) {
    const PixelRect area = part.value_or(tile);
    glEnable(GL_SCISSOR_TEST);
    glScissor(area.x - tile.x, area.y - tile.y, area.width, area.height);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);
    if (!part) {
        canvasSoft.reset();
        canvasMarked = marksSoft;
    }
    return {true, part, marksSoft};
}

void RendererState::drawInstances(const std::vector<PlanetDraw>& planetDraws, std::size_t first,
                                  std::size_t end, const std::optional<DrawnPixels>& everywhere,
                                  bool marks, const PlanetUniforms& uniforms) {
    if (first == end)
        return;
    // The pixels each planet is drawn at come from its own box, or are one box for all.
    for (const GlObject* vertices : {&quadVertices, &spriteVertices}) {
        glBindVertexArray(vertices->id());
        if (everywhere)
            glDisableVertexAttribArray(kDrawnPixelsAttribute);
        else
            glEnableVertexAttribArray(kDrawnPixelsAttribute);
    }
    if (everywhere)
        glVertexAttrib4f(kDrawnPixelsAttribute, everywhere->left, everywhere->bottom,
                         everywhere->right, everywhere->top);
    glDepthFunc(GL_LESS);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA); // the canvas holds premultiplied colour
    glDisable(GL_CULL_FACE);
    glEnable(GL_PROGRAM_POINT_SIZE);
    if (marks) {
        // Each colour that passes the depth test leaves the shader's mark.
        glEnable(GL_STENCIL_TEST);
        glStencilFunc(GL_ALWAYS, 0, 0xFF);
        glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    }

    glActiveTexture(GL_TEXTURE0 + kRampUnit);
    glBindTexture(GL_TEXTURE_2D, gradientRamps.id());
    glActiveTexture(GL_TEXTURE0 + kSurfaceUnit);
    glBindTexture(GL_TEXTURE_2D_ARRAY, surfaces.texture());
    for (std::size_t i = first; i < end; ++i) {
        const PlanetDraw& draw = planetDraws[i];
        // A planet alone on the cleared canvas needs neither: every colour of it passes, and
        // blending over nothing leaves the colour itself.
        if (draw.alone) {
            glDisable(GL_DEPTH_TEST);
            glDisable(GL_BLEND);
        } else {
            glEnable(GL_DEPTH_TEST);
            glEnable(GL_BLEND);
        }
        useProgram(program(draw), uniforms);
        const auto count = static_cast<GLsizei>(draw.count);
        if (draw.shape != PlanetShape::quad && !draw.inPieces) {
            glBindVertexArray(spriteVertices.id());
            glDrawArrays(GL_POINTS, static_cast<GLint>(draw.first), count);
            continue;
        }
        // Quads are cut to their piece of the picture; sprites in pieces are those pieces.
        const bool cut = draw.shape == PlanetShape::quad;
        glBindVertexArray(quadVertices.id());
        pointAttributesAt(draw.first);
        for (GLenum plane = 0; plane < 4 && cut; ++plane)
            glEnable(GL_CLIP_DISTANCE0 + plane);
        glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, count);
        for (GLenum plane = 0; plane < 4 && cut; ++plane)
            glDisable(GL_CLIP_DISTANCE0 + plane);
    }
    glBindVertexArray(0);
    glActiveTexture(GL_TEXTURE0);
    glDisable(GL_STENCIL_TEST);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
}

void RendererState::useProgram(const PlanetProgram& shader, const PlanetUniforms& uniforms) {
    glUseProgram(shader.program.id());
    glUniformMatrix4fv(shader.projection, 1, GL_FALSE, uniforms.projection.data());
    glUniform1f(shader.pixelAngle, uniforms.pixelAngle);
    // A pixel of the tile lies at gl_FragCoord less viewport.xy in the picture.
    glUniform4f(shader.viewport, -uniforms.tile[0], -uniforms.tile[1], uniforms.viewport[0],
                uniforms.viewport[1]);
    glUniform4fv(shader.tile, 1, uniforms.tile.data());
    glUniform2f(shader.ndcToRay, uniforms.ndcToRay[0], uniforms.ndcToRay[1]);
    glUniform3fv(shader.lightPosition, 1, uniforms.lightPosition.data());
    glUniform3fv(shader.lightColor, 1, uniforms.lightColor.data());
    glUniform1i(shader.gradientRamps, kRampUnit);
    glUniform1i(shader.surfaces, kSurfaceUnit);
    glUniform1f(shader.surfaceWidth, uniforms.surfaceWidth);
}

// Instanced draws start at their first planet by moving where the per-planet attributes
// of the bound vertex array are read: OpenGL 3.3 has no base instance.
void RendererState::pointAttributesAt(std::size_t first) {
    const auto attribute = [first](GLuint index, GLint size, std::size_t stride,
                                   std::size_t offset) {
        glVertexAttribPointer(index, size, GL_FLOAT, GL_FALSE, static_cast<GLsizei>(stride),
                              reinterpret_cast<const void*>(first * stride + offset));
    };
    glBindBuffer(GL_ARRAY_BUFFER, instanceBuffer.id());
    attribute(0, 4, sizeof(PlanetInstance), offsetof(PlanetInstance, center));
    attribute(1, 4, sizeof(PlanetInstance), offsetof(PlanetInstance, color));
    attribute(2, 3, sizeof(PlanetInstance), offsetof(PlanetInstance, rampRow));
    glBindBuffer(GL_ARRAY_BUFFER, pixelsBuffer.id());
    attribute(kDrawnPixelsAttribute, 4, sizeof(DrawnPixels), 0);
}

void RendererState::setBackdrop(const Image& image) {
    finishing.setBackdrop(image);
    finishedOverBackdrop.reset();
}

bool RendererState::drawFrame(const Scene& scene, const CameraProjection& camera, int width,
                              int height, const PixelRect& tile, bool overBackdrop, bool spread,
                              std::string* error) {
    // Errors left over from whoever used the context before are not ours to report.
    while (glGetError() != GL_NO_ERROR) {
    }
    if (!canvas.ensureSize(tile.width, tile.height, error)) {
        canvasUniforms.reset();
        finishedOverBackdrop.reset();
        return false;
    }
    // While the planets are taken in, the canvas keeps what it shows.
    const DrawnArea drawn = refreshPlanets(scene, camera, width, height, spread)
                                ? drawPlanets(camera, width, height, tile, spread)
                                : DrawnArea{};
    // The finishing works on the canvas's own pixels.
    const auto local = [&tile](const PixelRect& rect) {
        return PixelRect{rect.x - tile.x, rect.y - tile.y, rect.width, rect.height};
    };
    const std::optional<PixelRect> soft =
        canvasSoft ? std::optional(local(*canvasSoft)) : std::nullopt;
    const PixelRect whole = local(tile);
    if (finishedOverBackdrop != overBackdrop)
        finishing.finish(canvas, whole, soft, tile.width, tile.height, overBackdrop, canvasMarked);
    else if (drawn.any)
        finishing.finish(canvas, local(drawn.part.value_or(tile)), soft, tile.width, tile.height,
                         overBackdrop, drawn.marked);
    finishedOverBackdrop = overBackdrop;
    return true;
}

// Whether OpenGL failed since drawFrame began; then the canvas is to be drawn afresh.
bool RendererState::drewWithoutError(std::string* error) {
    const GLenum problem = glGetError();
    if (problem == GL_NO_ERROR)
        return true;
    canvasUniforms.reset();
    finishedOverBackdrop.reset();
    if (error != nullptr)
        *error = problem == GL_OUT_OF_MEMORY
                     ? "OpenGL ran out of memory while drawing"
                     : "OpenGL failed while drawing (error " + std::to_string(problem) + ")";
    return false;
}

bool RendererState::render(const Scene& scene, const CameraProjection& camera, GLuint target,
                           int width, int height, bool overBackdrop, std::string* error) {
    if (!drawFrame(scene, camera, width, height, PixelRect{0, 0, width, height}, overBackdrop, true,
                   error))
        return false;
    glBindFramebuffer(GL_READ_FRAMEBUFFER, canvas.pictureFramebuffer());
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, target);
    glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_FRAMEBUFFER, target);
    return drewWithoutError(error);
}

std::optional<Image> RendererState::renderImage(const Scene& scene, const CameraProjection& camera,
                                                int width, int height, std::string* error,
                                                const PictureTiling& tiling) {
    if (!pictureNotEmpty(width, height, error))
        return std::nullopt;
    if (width > kLargestPictureSide || height > kLargestPictureSide) {
        if (error != nullptr)
            *error = pictureText(width, height) + " is larger than the renderer draws (" +
                     std::to_string(kLargestPictureSide) + " pixels a side)";
        return std::nullopt;
    }
    const int side =
        std::min(tiling.tileSide > 0 ? tiling.tileSide : kPictureTileSide, largestCanvasSide());
    const std::vector<PixelRect> tiles = pictureTiles(width, height, side);
    Image picture;
    std::vector<std::uint8_t> tilePixels;
    try {
        picture = Image(width, height);
        tilePixels.resize(static_cast<std::size_t>(std::min(side, width)) *
                          static_cast<std::size_t>(std::min(side, height)) * 4);
    } catch (const std::bad_alloc&) {
        if (error != nullptr)
            *error = "not enough memory for " + pictureText(width, height);
        return std::nullopt;
    }
    for (std::size_t done = 0; done < tiles.size(); ++done) {
        const PixelRect& tile = tiles[done];
        if (!drawFrame(scene, camera, width, height, tile, false, false, error)) {
            // Say which picture the tile belongs to, whose size the person asked for.
            if (error != nullptr && tiles.size() > 1)
                *error += " (a tile of " + pictureText(width, height) + ")";
            return std::nullopt;
        }
        glBindFramebuffer(GL_READ_FRAMEBUFFER, canvas.pictureFramebuffer());
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glReadPixels(0, 0, tile.width, tile.height, GL_RGBA, GL_UNSIGNED_BYTE, tilePixels.data());
        glBindFramebuffer(GL_READ_FRAMEBUFFER, 0);
        if (!drewWithoutError(error))
            return std::nullopt;
        placeTile(tilePixels, tile, picture);
        if (tiling.progress)
            tiling.progress(static_cast<int>(done + 1), static_cast<int>(tiles.size()));
    }
    return picture;
}

std::string RendererState::description() const {
    return std::string(glText(GL_RENDERER)) + ", OpenGL " + glText(GL_VERSION);
}

} // namespace render

Renderer::Renderer(std::unique_ptr<render::RendererState> state) : state_(std::move(state)) {}

void Renderer::setBackdrop(const Image& backdrop) {
    state_->setBackdrop(backdrop);
}

void Renderer::spreadRedraws(std::size_t planetsPerFrame) {
    state_->spreadRedraws(planetsPerFrame);
}

bool Renderer::drawsMore() const {
    return state_->drawsMore();
}
Renderer::~Renderer() = default;

std::unique_ptr<Renderer> Renderer::create(SurfaceSource surfaces, std::string* error) {
    auto state = std::make_unique<render::RendererState>(std::move(surfaces));
    if (!state->build(error))
        return nullptr;
    return std::unique_ptr<Renderer>(new Renderer(std::move(state)));
}

bool Renderer::render(const SceneView& view, unsigned framebuffer, int width, int height,
                      std::string* error) {
    return render(view.scene(), view.projection(width, height), framebuffer, width, height, error);
}

bool Renderer::render(const Scene& scene, const CameraProjection& camera, unsigned framebuffer,
                      int width, int height, std::string* error) {
    return state_->render(scene, camera, framebuffer, width, height, state_->hasBackdrop(), error);
}

std::optional<Image> Renderer::renderImage(const SceneView& view, int width, int height,
                                           std::string* error, const PictureTiling& tiling) {
    return renderImage(view.scene(), view.projection(width, height), width, height, error, tiling);
}

std::optional<Image> Renderer::renderImage(const Scene& scene, const CameraProjection& camera,
                                           int width, int height, std::string* error,
                                           const PictureTiling& tiling) {
    return state_->renderImage(scene, camera, width, height, error, tiling);
}

std::string Renderer::description() const {
    return state_->description();
}

} // namespace orrery
