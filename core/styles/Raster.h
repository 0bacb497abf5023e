#pragma once

#include "core/model/Color.h"
#include "core/styles/Image.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

// Small helpers shared by the rasterisers of this folder.
namespace orrery::raster {

// Pixels for a size in points: truncated toward zero; negative or NaN sizes give 0, and
// sizes beyond what an int holds are held at its limit instead of overflowing.
inline int pixelExtent(double points) {
    if (!(points >= 1.0))
        return 0;
    if (points >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return static_cast<int>(points);
}

// An empty (transparent) image of a size in points.
inline Image blankImage(double width, double height) {
    return Image(pixelExtent(width), pixelExtent(height), width, height);
}

// One 8-bit sample of a component from 0 to 1, rounded to nearest, clamped.
inline std::uint8_t toByte(double component) {
    if (!(component > 0.0))
        return 0;
    if (component >= 1.0)
        return 255;
    return static_cast<std::uint8_t>(component * 255.0 + 0.5);
}

using Pixel = std::array<std::uint8_t, 4>;

inline Pixel toPixel(const Color& color) {
    return {toByte(color.red), toByte(color.green), toByte(color.blue), toByte(color.alpha)};
}

// Writes count copies of one pixel starting at dst.
inline void fillPixels(std::uint8_t* dst, std::size_t count, const Pixel& pixel) {
    for (std::size_t i = 0; i < count; ++i)
        std::memcpy(dst + i * 4, pixel.data(), 4);
}

} // namespace orrery::raster
