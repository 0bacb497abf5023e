#include "render/ImageResample.h"

#include <gtest/gtest.h>

namespace orrery::render {
namespace {

TEST(ImageResample, ShrinkingAveragesFineDetail) {
    // One-pixel stripes of black and white shrink to even grey, not to either stripe.
    Image stripes(64, 8);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 64; ++x)
            for (int c = 0; c < 4; ++c)
                stripes.pixel(x, y)[c] = c == 3 || x % 2 == 0 ? 255 : 0;
    const Image small = resampled(stripes, 16, 2);
    ASSERT_EQ(small.width, 16);
    ASSERT_EQ(small.height, 2);
    for (int x = 0; x < 16; ++x) {
        EXPECT_NEAR(small.pixel(x, 1)[0], 128, 2) << x;
        EXPECT_EQ(small.pixel(x, 1)[3], 255);
    }
}

TEST(ImageResample, EnlargingKeepsColoursAndWrapsAroundTheEquator) {
    Image two(2, 1);
    two.pixel(0, 0)[0] = 200; // red on the left column
    two.pixel(1, 0)[2] = 200; // blue on the right
    const Image wide = resampled(two, 8, 2);
    // The leftmost column lies between the last source column (wrapped round) and the
    // first one, nearer the first.
    EXPECT_EQ(wide.pixel(0, 0)[0], 125);
    EXPECT_EQ(wide.pixel(0, 0)[2], 75);
    EXPECT_EQ(wide.pixel(1, 1)[0], 175);
    EXPECT_EQ(wide.pixel(1, 1)[2], 25);
    EXPECT_EQ(wide.pixel(5, 1)[2], 175);
}

} // namespace
} // namespace orrery::render
