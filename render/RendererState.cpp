#include "render/RendererState.h"

#include "render/ColorSpace.h"
#include "render/GlObject.h"
#include "render/PictureTiles.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace orrery::render {
namespace {

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

float largestPointSize() {
    GLfloat range[2] = {1.0f, 1.0f};
    glGetFloatv(GL_POINT_SIZE_RANGE, range);
    return range[1];
}

} // namespace

void RendererState::spreadRedraws(std::size_t planetsPerFrame) {
    strips.setPlanetsPerFrame(planetsPerFrame);
    planets.setNodesPerFrame(planetsPerFrame > 0 ? planetsPerFrame * kNodesPerPlanetDrawn
                                                 : std::numeric_limits<std::size_t>::max());
}

bool RendererState::build(std::string* error) {
    if (epoxy_gl_version() < kNeededGlVersion) {
        if (error != nullptr)
            *error = std::string("OpenGL 3.3 or later is needed; the context offers ") +
                     glText(GL_VERSION);
        return false;
    }
    marksSoft = epoxy_has_gl_extension("GL_ARB_shader_stencil_export");
    pointSizeLimit = largestPointSize();
    return finishing.build(error) && drawer.build(marksSoft, error);
}

bool RendererState::refreshPlanets(const Scene& scene, const CameraProjection& camera, int width,
                                   int height, bool spread) {
    switch (planets.refresh(scene, camera, width, height, pointSizeLimit, spread)) {
    case CurrentPlanets::Refresh::takingIn:
        return false;
    case CurrentPlanets::Refresh::changed:
        changedArea = planets.takeChangedArea();
        wholePassTile.reset();
        return true;
    case CurrentPlanets::Refresh::same:
        return true;
    }
    return true;
}

void RendererState::upload(const ShownPlanets::Pass& pass) {
    if (pass.asListed)
        drawer.upload(planets.list().instances(), nullptr);
    else
        drawer.upload(pass.instances, &pass.pixels);
}

DrawnArea RendererState::drawPlanets(const CameraProjection& camera, int width, int height,
                                     const PixelRect& tile, bool spread) {
    const PlanetUniforms uniforms =
        planetUniforms(camera, planets.light(), width, height, tile, surfaces.layerWidth());
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
    if (spread && strips.split(part.value_or(tile), planets.list().instances().size(), height))
        return clearForStrips(part, tile);
    const std::array<double, 16> projection = camera.matrix();
    const DepthFrame depthFrame{planets.frame(), projection[10], projection[14]};
    if (part) {
        glEnable(GL_SCISSOR_TEST);
        glScissor(part->x - tile.x, part->y - tile.y, part->width, part->height);
        planets.list().passOver(*part, planets.draws(), depthFrame, drawer.opaqueRamps(), partPass);
        upload(partPass);
        bufferHoldsWholePass = false;
        canvasSoft = unite(canvasSoft, partPass.soft);
    } else {
        glDisable(GL_SCISSOR_TEST);
        if (wholePassTile != tile)
            planets.list().passOver(tile, planets.draws(), depthFrame, drawer.opaqueRamps(),
                                    wholePass);
        if (wholePassTile != tile || !bufferHoldsWholePass)
            upload(wholePass);
        wholePassTile = tile;
        bufferHoldsWholePass = true;
        canvasSoft = wholePass.soft;
    }
    // Planets drawn as listed are many small ones: marking costs more than it spares.
    const ShownPlanets::Pass& pass = part ? partPass : wholePass;
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
            drawer.draw(pass.draws, first, end, everywhere, marks, uniforms, surfaces.texture());
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

} // namespace orrery::render
