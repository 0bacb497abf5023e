#pragma once

#include "core/styles/Image.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

namespace orrery::testing {

using Rgba = std::array<int, 4>;

inline Rgba pixelAt(const Image& image, int x, int y) {
    const std::uint8_t* p = image.pixel(x, y);
    return {p[0], p[1], p[2], p[3]};
}

// Largest difference of any channel: rounding may move a sample by one step.
inline int channelDistance(const Rgba& a, const Rgba& b) {
    int largest = 0;
    for (std::size_t i = 0; i < 4; ++i)
        largest = std::max(largest, std::abs(a[i] - b[i]));
    return largest;
}

} // namespace orrery::testing
