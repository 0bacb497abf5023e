#pragma once

#include "render/PlanetDraws.h"

#include <string>

// GLSL 3.30 of the sphere impostors and of the pass that finishes the picture.
namespace orrery::render {

// The planets' vertex shader for planets of one shape; sprites in pieces are drawn as one
// rectangle per piece (see PlanetDraw).
std::string planetVertexShader(PlanetShape shape, bool inPieces);

// The planets' fragment shader for planets of one shape, with or without gradient and
// surface textures; with marksSoft, it leaves in the stencil whether each colour it lays
// down is soft (see PictureFinish), which needs GL_ARB_shader_stencil_export.
std::string planetFragmentShader(PlanetShape shape, bool textured, bool marksSoft);

extern const char* const kComposeVertexShader;
// The pass that turns the canvas into the picture, alone or laid over a backdrop.
std::string composeFragmentShader(bool overBackdrop);

} // namespace orrery::render
