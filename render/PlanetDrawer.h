#pragma once

#include "render/GlObject.h"
#include "render/GrowingBuffer.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"
#include "render/PlanetPrograms.h"
#include "render/PlanetUniforms.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace orrery::render {

// Draws planets with OpenGL into the bound framebuffer: the planet shaders, the buffers of
// per-planet data and the vertex arrays that read them, and the gradient ramps.
class PlanetDrawer {
public:
    // `marksSoft`: the shaders leave soft pixels marked in the stencil.
    bool build(bool marksSoft, std::string* error);
    // Which gradient ramps are opaque in every sample.
    const std::vector<bool>& opaqueRamps() const { return opaqueRamps_; }

    // The planets the next draws draw, and the pixels each is drawn at (none: the draws give
    // one box for all).
    void upload(const std::vector<PlanetInstance>& instances,
                const std::vector<DrawnPixels>* pixels);
    // Draws `planetDraws` from `first` to `end` of the uploaded planets, with the surfaces'
    // texture array; `everywhere`: the one box every planet is drawn over; `marks`: soft
    // pixels are marked in the stencil.
    void draw(const std::vector<PlanetDraw>& planetDraws, std::size_t first, std::size_t end,
              const std::optional<DrawnPixels>& everywhere, bool marks,
              const PlanetUniforms& uniforms, GLuint surfaces);

private:
    void pointAttributesAt(std::size_t first);

    PlanetPrograms programs_;
    // Quads are instances of four vertices; sprites are plain vertices, one per planet, as a
    // software renderer runs its vertex stage once per instance rather than for eight
    // vertices at a time.
    GlObject quadVertices_{GlObject::Kind::vertexArray};
    GlObject spriteVertices_{GlObject::Kind::vertexArray};
    GrowingBuffer instanceBuffer_;
    GrowingBuffer pixelsBuffer_; // the pixels each planet is drawn at
    GlObject gradientRamps_{GlObject::Kind::texture};
    std::vector<bool> opaqueRamps_;
};

} // namespace orrery::render
