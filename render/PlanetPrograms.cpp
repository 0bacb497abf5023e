#include "render/PlanetPrograms.h"

#include "render/PlanetShaders.h"
#include "render/ShaderProgram.h"

#include <utility>

namespace orrery::render {

bool PlanetPrograms::build(bool marksSoft, std::string* error) {
    for (const PlanetShape shape :
         {PlanetShape::tinySprite, PlanetShape::sprite, PlanetShape::quad}) {
        for (const auto& [textured, inPieces] :
             {std::pair{false, false}, {true, false}, {false, true}, {true, true}}) {
            if ((!textured && shape == PlanetShape::tinySprite) ||
                (inPieces && shape == PlanetShape::quad))
                continue;
            Program& shader = program({0, 0, textured, shape, false, inPieces});
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
    return true;
}

// Plain tiny sprites are drawn as plain sprites: without textures the two are one.
PlanetPrograms::Program& PlanetPrograms::program(const PlanetDraw& draw) {
    const PlanetShape shape =
        !draw.textured && draw.shape == PlanetShape::tinySprite ? PlanetShape::sprite : draw.shape;
    return programs_[static_cast<std::size_t>(shape)][draw.textured ? 1 : 0][draw.inPieces ? 1 : 0];
}

void PlanetPrograms::use(const PlanetDraw& draw, const PlanetUniforms& uniforms, int rampUnit,
                         int surfaceUnit) {
    const Program& shader = program(draw);
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
    glUniform1i(shader.gradientRamps, rampUnit);
    glUniform1i(shader.surfaces, surfaceUnit);
    glUniform1f(shader.surfaceWidth, uniforms.surfaceWidth);
}

} // namespace orrery::render
