#include "render/GradientRamps.h"
#include "core/scene/PlanetNodes.h"
#include "core/styles/GradientLibrary.h"
#include "core/styles/StyleImages.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orrery::render {
namespace {

// Ramp value at v (0 at the top), read with linear filtering as the GPU does.
double rampAt(const std::vector<std::uint8_t>& ramps, int row, double v, int channel) {
    const double texel = std::clamp(v * kGradientRampLength - 0.5, 0.0, kGradientRampLength - 1.0);
    const int left = static_cast<int>(texel);
    const int right = std::min(left + 1, kGradientRampLength - 1);
    const auto at = [&](int i) {
        return ramps[(static_cast<std::size_t>(row) * kGradientRampLength + i) * 4 + channel];
    };
    return at(left) + (at(right) - at(left)) * (texel - left);
}

TEST(GradientRamps, RowsOnlyForCatalogueNumbers) {
    EXPECT_EQ(gradientRampRow(0), 0);
    EXPECT_EQ(gradientRampRow(84), 84);
    EXPECT_EQ(gradientRampRow(85), -1);
    EXPECT_EQ(gradientRampRow(-1), -1);
}

// The point of the ramps: a planet's square texture of side 2 pi r at 270 degrees is, row
// for row, the ramp. Compared for every style at the default radius and a big one.
TEST(GradientRamps, EqualTheSquareTextureOfEveryStyleAndRadius) {
    const auto ramps = gradientRampPixels();
    ASSERT_EQ(ramps.size(), static_cast<std::size_t>(kGradientRampLength) * kGradientRampCount * 4);
    const gradientLibrary library;
    for (const double radius : {24.0, 300.0}) {
        const double side = kTwoPi * radius;
        for (int style = 0; style < kGradientRampCount; ++style) {
            const Image texture =
                makeGradientImage(library.getGradient(style), side, side, kGradientAngle);
            int close = 0;
            int samples = 0;
            for (int y = 0; y < texture.height; ++y) {
                const double v = (y + 0.5) / texture.height;
                for (int c = 0; c < 4; ++c) {
                    const double difference = std::abs(texture.pixel(texture.width / 2, y)[c] -
                                                       rampAt(ramps, style, v, c));
                    close += difference <= 1.5 ? 1 : 0;
                    ++samples;
                }
            }
            // Rows differ only where a hard edge falls between two ramp samples.
            EXPECT_GE(close, samples * 99 / 100) << "style " << style << " radius " << radius;
        }
    }
}

} // namespace
} // namespace orrery::render
