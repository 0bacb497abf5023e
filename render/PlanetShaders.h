#pragma once

#include <string>

namespace orrery::render {

// GLSL of the sphere impostors. With `sampleMask` the fragment shader decides per sample
// whether the sphere covers it (needs GLSL 4.00 or ARB_sample_shading); without it the
// silhouette is decided once per pixel.
std::string planetVertexShader(int glslVersion);
std::string planetFragmentShader(int glslVersion, bool sampleMask, bool sampleShadingExtension);

// The pass that turns the multisampled, premultiplied canvas into the finished picture
// with straight alpha.
std::string composeVertexShader(int glslVersion);
std::string composeFragmentShader(int glslVersion);

} // namespace orrery::render
