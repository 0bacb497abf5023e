#pragma once

#include <cmath>

namespace orrery::render {

// Light is added up in linear space; colours arrive sRGB-encoded.
inline double srgbToLinear(double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

} // namespace orrery::render
