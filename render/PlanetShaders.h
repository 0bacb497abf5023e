#pragma once

// GLSL 3.30 of the sphere impostors and of the pass that finishes the picture.
namespace orrery::render {

extern const char* const kPlanetVertexShader;
extern const char* const kPlanetFragmentShader;
extern const char* const kComposeVertexShader;
extern const char* const kComposeFragmentShader;

} // namespace orrery::render
