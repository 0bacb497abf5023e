#include "render/PlanetDrawer.h"

#include "render/GradientRamps.h"

#include <array>

namespace orrery::render {
namespace {

constexpr GLuint kDrawnPixelsAttribute = 3;
constexpr int kRampUnit = 0;
constexpr int kSurfaceUnit = 1;

// Whether every sample of each ramp is opaque.
std::vector<bool> opaqueRows(const std::vector<std::uint8_t>& pixels) {
    std::vector<bool> opaque(kGradientRampCount, true);
    for (std::size_t i = 3; i < pixels.size(); i += 4)
        if (pixels[i] != 255)
            opaque[i / 4 / kGradientRampLength] = false;
    return opaque;
}

} // namespace

bool PlanetDrawer::build(bool marksSoft, std::string* error) {
    if (!programs_.build(marksSoft, error))
        return false;
    instanceBuffer_.create();
    pixelsBuffer_.create();
    for (GlObject* vertices : {&quadVertices_, &spriteVertices_}) {
        vertices->create();
        glBindVertexArray(vertices->id());
        for (GLuint index = 0; index < 4; ++index) {
            glEnableVertexAttribArray(index);
            glVertexAttribDivisor(index, vertices == &quadVertices_ ? 1 : 0);
        }
        pointAttributesAt(0);
    }
    glBindVertexArray(0);

    const std::vector<std::uint8_t> rampPixels = gradientRampPixels();
    gradientRamps_ = makeGradientRampTexture(rampPixels);
    opaqueRamps_ = opaqueRows(rampPixels);
    return true;
}

void PlanetDrawer::upload(const std::vector<PlanetInstance>& instances,
                          const std::vector<DrawnPixels>* pixels) {
    instanceBuffer_.upload(instances);
    if (pixels != nullptr)
        pixelsBuffer_.upload(*pixels);
}

void PlanetDrawer::draw(const std::vector<PlanetDraw>& planetDraws, std::size_t first,
                        std::size_t end, const std::optional<DrawnPixels>& everywhere, bool marks,
                        const PlanetUniforms& uniforms, GLuint surfaces) {
    if (first == end)
        return;
    // The pixels each planet is drawn at come from its own box, or are one box for all.
    for (const GlObject* vertices : {&quadVertices_, &spriteVertices_}) {
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
    glBindTexture(GL_TEXTURE_2D, gradientRamps_.id());
    glActiveTexture(GL_TEXTURE0 + kSurfaceUnit);
    glBindTexture(GL_TEXTURE_2D_ARRAY, surfaces);
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
        programs_.use(draw, uniforms, kRampUnit, kSurfaceUnit);
        const auto count = static_cast<GLsizei>(draw.count);
        if (draw.shape != PlanetShape::quad && !draw.inPieces) {
            glBindVertexArray(spriteVertices_.id());
            glDrawArrays(GL_POINTS, static_cast<GLint>(draw.first), count);
            continue;
        }
        // Quads are cut to their piece of the picture; sprites in pieces are those pieces.
        const bool cut = draw.shape == PlanetShape::quad;
        glBindVertexArray(quadVertices_.id());
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

// Instanced draws start at their first planet by moving where the per-planet attributes
// of the bound vertex array are read: OpenGL 3.3 has no base instance.
void PlanetDrawer::pointAttributesAt(std::size_t first) {
    const auto attribute = [first](GLuint index, GLint size, std::size_t stride,
                                   std::size_t offset) {
        glVertexAttribPointer(index, size, GL_FLOAT, GL_FALSE, static_cast<GLsizei>(stride),
                              reinterpret_cast<const void*>(first * stride + offset));
    };
    glBindBuffer(GL_ARRAY_BUFFER, instanceBuffer_.id());
    attribute(0, 4, sizeof(PlanetInstance), offsetof(PlanetInstance, center));
    attribute(1, 4, sizeof(PlanetInstance), offsetof(PlanetInstance, color));
    attribute(2, 3, sizeof(PlanetInstance), offsetof(PlanetInstance, rampRow));
    glBindBuffer(GL_ARRAY_BUFFER, pixelsBuffer_.id());
    attribute(kDrawnPixelsAttribute, 4, sizeof(DrawnPixels), 0);
}

} // namespace orrery::render
