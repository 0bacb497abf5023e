#pragma once

#include <string>

// GLSL 3.30 of the sphere impostors and of the pass that finishes the picture.
namespace orrery::render {

extern const char* const kPlanetVertexShader;

// The planets' fragment shader, with or without gradient and surface textures.
std::string planetFragmentShader(bool textured);

extern const char* const kComposeVertexShader;
extern const char* const kComposeFragmentShader;

} // namespace orrery::render
