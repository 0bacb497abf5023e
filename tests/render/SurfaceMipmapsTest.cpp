#include "render/SurfaceMipmaps.h"

#include <gtest/gtest.h>

namespace orrery::render {
namespace {

TEST(SurfaceMipmaps, HalvingAveragesColourInLinearLight_DownToOnePixel) {
    // Black and white columns, opaque and transparent rows.
    Image stripes(4, 2);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4; ++x) {
            std::uint8_t* p = stripes.pixel(x, y);
            p[0] = p[1] = p[2] = x % 2 == 0 ? 0 : 255;
            p[3] = y == 0 ? 255 : 0;
        }
    }
    const Image half = halvedSurface(stripes);
    ASSERT_EQ(half.width, 2);
    ASSERT_EQ(half.height, 1);
    // Half of white's light is 188 in sRGB, not 128: averaging the encoded values would
    // darken every fine pattern in the distance.
    EXPECT_EQ(half.pixel(1, 0)[0], 188);
    EXPECT_EQ(half.pixel(1, 0)[2], 188);
    EXPECT_EQ(half.pixel(1, 0)[3], 128);
    // A side already one pixel long stays one pixel long.
    const Image last = halvedSurface(halvedSurface(half));
    EXPECT_EQ(last.width, 1);
    EXPECT_EQ(last.height, 1);
    EXPECT_EQ(last.pixel(0, 0)[1], 188);
}

} // namespace
} // namespace orrery::render
