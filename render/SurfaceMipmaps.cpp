#include "render/SurfaceMipmaps.h"

#include "render/ColorSpace.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orrery::render {
namespace {

constexpr int kEncodeSteps = 4096;

// Decoding is exact for each of the 256 byte values; encoding looks up the linear value at
// 12 bits, within a fraction of an 8-bit step even in the darks.
struct SrgbTables {
    std::array<float, 256> toLinear{};
    std::array<std::uint8_t, kEncodeSteps + 1> toSrgb{};

    SrgbTables() {
        for (std::size_t i = 0; i < toLinear.size(); ++i)
            toLinear[i] = static_cast<float>(srgbToLinear(static_cast<double>(i) / 255.0));
        for (std::size_t i = 0; i < toSrgb.size(); ++i) {
            const double linear = static_cast<double>(i) / kEncodeSteps;
            const double encoded =
                linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1.0 / 2.4) - 0.055;
            toSrgb[i] =
                static_cast<std::uint8_t>(std::lround(std::clamp(encoded, 0.0, 1.0) * 255.0));
        }
    }
};

const SrgbTables& tables() {
    static const SrgbTables instance;
    return instance;
}

} // namespace

Image halvedSurface(const Image& image) {
    const SrgbTables& t = tables();
    Image half(std::max(1, image.width / 2), std::max(1, image.height / 2));
    for (int y = 0; y < half.height; ++y) {
        const int y0 = std::min(2 * y, image.height - 1);
        const int y1 = std::min(2 * y + 1, image.height - 1);
        for (int x = 0; x < half.width; ++x) {
            const int x0 = std::min(2 * x, image.width - 1);
            const int x1 = std::min(2 * x + 1, image.width - 1);
            const std::uint8_t* block[4] = {image.pixel(x0, y0), image.pixel(x1, y0),
                                            image.pixel(x0, y1), image.pixel(x1, y1)};
            std::uint8_t* out = half.pixel(x, y);
            for (int c = 0; c < 3; ++c) {
                float linear = 0.0f;
                for (const std::uint8_t* p : block)
                    linear += t.toLinear[p[c]];
                out[c] = t.toSrgb[static_cast<std::size_t>(linear / 4.0f * kEncodeSteps + 0.5f)];
            }
            out[3] = static_cast<std::uint8_t>(
                (block[0][3] + block[1][3] + block[2][3] + block[3][3] + 2) / 4);
        }
    }
    return half;
}

} // namespace orrery::render
