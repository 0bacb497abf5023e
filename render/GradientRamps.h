#pragma once

#include "render/GlObject.h"

#include <cstdint>
#include <vector>

namespace orrery::render {

// Samples per gradient: far more than the stops need, and the same for every radius.
inline constexpr int kGradientRampLength = 512;
inline constexpr int kGradientRampCount = 85; // catalogue numbers 0 to 84

// A styled planet's diffuse texture only varies from top to bottom (the gradient runs at
// 270 degrees), so one column of it is the whole texture. Row n holds the column of
// catalogue number n, position 0 (the north pole) first, as RGBA bytes.
std::vector<std::uint8_t> gradientRampPixels();

// The row of a style number, or -1 when the number has no gradient.
int gradientRampRow(std::int64_t style);

// The ramps as the planet shaders read them (sRGB, filtered linearly); needs a current
// OpenGL context.
GlObject makeGradientRampTexture(const std::vector<std::uint8_t>& pixels);

} // namespace orrery::render
