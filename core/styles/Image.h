#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orrery {

// A picture as 8-bit red, green, blue, alpha samples, straight (not premultiplied)
// alpha, rows top first, tightly packed. The front end wraps `pixels` without copying.
// `pointWidth` and `pointHeight` keep the size that was asked for, which may be
// fractional; the pixel size is that size truncated toward zero.
struct Image {
    int width = 0;
    int height = 0;
    double pointWidth = 0.0;
    double pointHeight = 0.0;
    std::vector<std::uint8_t> pixels;

    Image() = default;
    Image(int w, int h) : Image(w, h, w, h) {}
    Image(int w, int h, double pw, double ph)
        : width(w > 0 ? w : 0), height(h > 0 ? h : 0), pointWidth(pw), pointHeight(ph),
          pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4, 0) {}

    bool isNull() const {
        return width <= 0 || height <= 0 ||
               pixels.size() !=
                   static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
    }
    std::size_t stride() const { return static_cast<std::size_t>(width) * 4; }
    std::uint8_t* pixel(int x, int y) {
        return pixels.data() + static_cast<std::size_t>(y) * stride() +
               static_cast<std::size_t>(x) * 4;
    }
    const std::uint8_t* pixel(int x, int y) const {
        return pixels.data() + static_cast<std::size_t>(y) * stride() +
               static_cast<std::size_t>(x) * 4;
    }
};

} // namespace orrery
