#pragma once

#include "render/GlObject.h"
#include "render/PlanetDraws.h"
#include "render/PlanetUniforms.h"

#include <array>
#include <string>

namespace orrery::render {

// The planet shaders, one for each way a draw draws planets (their shape, whether textured,
// sprites in pieces), each with where its uniforms are.
class PlanetPrograms {
public:
    // Builds them all; `marksSoft`: the fragment shaders leave soft pixels marked in the
    // stencil. False, with the reason in `error`, when one does not build.
    bool build(bool marksSoft, std::string* error);
    // Makes the draw's shader current with the frame's values and the texture units that
    // hold the gradient ramps and the surfaces.
    void use(const PlanetDraw& draw, const PlanetUniforms& uniforms, int rampUnit, int surfaceUnit);

private:
    // A shader and where its uniforms are; those it does not use stay at -1, which OpenGL
    // ignores.
    struct Program {
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
    Program& program(const PlanetDraw& draw);

    // [shape][textured][sprites in pieces]
    std::array<std::array<std::array<Program, 2>, 2>, 3> programs_;
};

} // namespace orrery::render
