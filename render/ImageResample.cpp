#include "render/ImageResample.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orrery::render {
namespace {

// Bilinear sample at a position in source pixels (pixel centres at +0.5), x wrapping.
std::array<double, 4> sampleAt(const Image& image, double x, double y) {
    x -= 0.5;
    y = std::clamp(y - 0.5, 0.0, static_cast<double>(image.height - 1));
    const double x0f = std::floor(x);
    const double y0f = std::floor(y);
    const double fx = x - x0f;
    const double fy = y - y0f;
    const auto wrap = [&](double column) {
        const int c = static_cast<int>(column) % image.width;
        return c < 0 ? c + image.width : c;
    };
    const int xa = wrap(x0f);
    const int xb = wrap(x0f + 1);
    const int ya = static_cast<int>(y0f);
    const int yb = std::min(ya + 1, image.height - 1);
    std::array<double, 4> result{};
    for (int channel = 0; channel < 4; ++channel) {
        const double top =
            image.pixel(xa, ya)[channel] * (1 - fx) + image.pixel(xb, ya)[channel] * fx;
        const double bottom =
            image.pixel(xa, yb)[channel] * (1 - fx) + image.pixel(xb, yb)[channel] * fx;
        result[static_cast<std::size_t>(channel)] = top * (1 - fy) + bottom * fy;
    }
    return result;
}

} // namespace

Image resampled(const Image& source, int width, int height) {
    Image target(width, height);
    if (source.isNull() || target.isNull())
        return target;
    const double scaleX = static_cast<double>(source.width) / width;
    const double scaleY = static_cast<double>(source.height) / height;
    // Enough taps per target pixel to cover its footprint in the source.
    const int tapsX = std::max(1, static_cast<int>(std::ceil(scaleX)));
    const int tapsY = std::max(1, static_cast<int>(std::ceil(scaleY)));
    const double weight = 1.0 / (tapsX * tapsY);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::array<double, 4> sum{};
            for (int ty = 0; ty < tapsY; ++ty) {
                for (int tx = 0; tx < tapsX; ++tx) {
                    const double sx = (x + (tx + 0.5) / tapsX) * scaleX;
                    const double sy = (y + (ty + 0.5) / tapsY) * scaleY;
                    const auto tap = sampleAt(source, sx, sy);
                    for (std::size_t c = 0; c < 4; ++c)
                        sum[c] += tap[c];
                }
            }
            std::uint8_t* out = target.pixel(x, y);
            for (std::size_t c = 0; c < 4; ++c)
                out[c] = static_cast<std::uint8_t>(std::clamp(sum[c] * weight + 0.5, 0.0, 255.0));
        }
    }
    return target;
}

} // namespace orrery::render
