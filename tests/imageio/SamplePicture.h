#pragma once

#include "core/styles/Image.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orrery::testing {

// A small scene as the renderer leaves it: a shaded, noisy planet with a soft edge on
// fully transparent space (alpha 0, colour 0).
Image samplePicture(int width, int height);

std::array<int, 4> pixelAt(const Image& image, int x, int y);

// The whole content of a file; empty when it cannot be read.
std::vector<std::uint8_t> fileBytes(const std::string& path);

} // namespace orrery::testing
