#pragma once

#include "core/styles/Image.h"
#include "render/Framebuffers.h"
#include "render/GlObject.h"
#include "render/PlanetUniforms.h"

#include <array>
#include <optional>
#include <string>

namespace orrery::render {

// Turns the canvas's premultiplied planets into the finished picture: straight alpha, and
// laid over the backdrop when there is one. Where the last colour a pixel got covered what
// lay behind it whole, the canvas already holds the finished bytes (and so does it, or the
// backdrop, where no planet is): those pixels are copied, a pass that costs next to nothing,
// and only the soft ones pass through the shader. Which is which, the planets leave in the
// canvas's stencil when OpenGL lets a shader write it (GL_ARB_shader_stencil_export) and the
// pass marks them; elsewhere, every pixel of the soft box passes through the shader.
class PictureFinish {
public:
    // False, with the compiler's reason, when the shaders cannot be built.
    bool build(std::string* error);

    // The picture to lay the planets over, top row first, straight alpha; empty for none.
    void setBackdrop(const Image& backdrop);
    bool hasBackdrop() const { return static_cast<bool>(backdrop_); }

    // Finishes an area of the canvas, width x height, into its picture; `soft` holds the
    // pixels where the planets may have left a soft colour (none: nowhere); `marked`, whether
    // the stencil tells which are soft.
    void finish(const Canvas& canvas, const PixelRect& area, const std::optional<PixelRect>& soft,
                int width, int height, bool overBackdrop, bool marked);

private:
    struct Program {
        GlObject program{GlObject::Kind::program};
        GLint canvas = -1;
        GLint backdrop = -1;
    };
    std::array<Program, 2> programs_; // [over the backdrop]
    GlObject vertices_{GlObject::Kind::vertexArray};
    GlObject backdrop_{GlObject::Kind::texture}; // none without a backdrop
};

} // namespace orrery::render
