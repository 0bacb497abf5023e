#include "core/styles/StyleImages.h"
#include "core/support/Log.h"
#include "tests/core/styles/PixelAt.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery {
namespace {

using testing::channelDistance;
using testing::pixelAt;
using testing::Rgba;

Image filled(int width, int height, Rgba colour) {
    Image image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c)
                image.pixel(x, y)[c] =
                    static_cast<std::uint8_t>(colour[static_cast<std::size_t>(c)]);
    return image;
}

TEST(ImageResize, LongerSideBecomesTheTargetAndAspectIsKept) {
    const Image wide = filled(1024, 512, {10, 20, 30, 255});
    EXPECT_EQ(imageResize128(wide)->width, 128);
    EXPECT_EQ(imageResize128(wide)->height, 64);
    EXPECT_EQ(imageResize64(wide)->height, 32);
    EXPECT_EQ(imageResize32(wide)->height, 16);

    const std::optional<Image> tall = imageResize128(filled(150, 300, {0, 0, 0, 255}));
    ASSERT_TRUE(tall);
    EXPECT_EQ(tall->width, 64);
    EXPECT_EQ(tall->height, 128);
    EXPECT_DOUBLE_EQ(tall->pointWidth, 64);

    // Enlarging: 10 x 3 to 32 wide gives 9.6 rows, rounded.
    const std::optional<Image> small = imageResize32(filled(10, 3, {0, 0, 0, 255}));
    EXPECT_EQ(small->width, 32);
    EXPECT_EQ(small->height, 10);

    // A sliver keeps at least one pixel across.
    EXPECT_EQ(imageResize32(filled(1000, 1, {0, 0, 0, 255}))->height, 1);
}

TEST(ImageResize, RefusesInvalidImagesWithALogLine) {
    std::vector<std::string> lines;
    const LogSink previous =
        setLogSink([&lines](std::string_view line) { lines.emplace_back(line); });
    Image broken(4, 4);
    broken.pixels.resize(10); // fewer samples than its size claims
    EXPECT_FALSE(imageResize32(Image()).has_value());
    EXPECT_FALSE(imageResize64(broken).has_value());
    EXPECT_FALSE(imageResize128(Image(0, 7)).has_value());
    setLogSink(previous);
    EXPECT_EQ(lines, (std::vector<std::string>{"Invalid Image", "Invalid Image", "Invalid Image"}));
}

TEST(ImageResize, ShrinkingAveragesAreas) {
    // Alternating black and white columns average to mid-grey instead of aliasing.
    Image stripes(256, 128);
    for (int y = 0; y < 128; ++y)
        for (int x = 0; x < 256; ++x) {
            std::uint8_t* p = stripes.pixel(x, y);
            p[0] = p[1] = p[2] = (x % 2 == 0) ? 255 : 0;
            p[3] = 255;
        }
    const std::optional<Image> half = imageResize128(stripes);
    ASSERT_TRUE(half);
    for (int x = 0; x < 128; x += 9)
        EXPECT_LE(channelDistance(pixelAt(*half, x, 40), {128, 128, 128, 255}), 1) << x;

    // A non-integer ratio (300 -> 128) still keeps a flat colour flat.
    const std::optional<Image> flat = imageResize128(filled(300, 200, {200, 100, 50, 255}));
    for (int y = 0; y < flat->height; y += 5)
        for (int x = 0; x < flat->width; x += 7)
            EXPECT_EQ(pixelAt(*flat, x, y), (Rgba{200, 100, 50, 255}));
}

TEST(ImageResize, TransparentPixelsDoNotBleedTheirColour) {
    // Left half invisible red, right half opaque blue: the edge may fade but never turn red.
    Image image(64, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            std::uint8_t* p = image.pixel(x, y);
            if (x < 31) {
                p[0] = 255;
                p[3] = 0;
            } else {
                p[2] = 255;
                p[3] = 255;
            }
        }
    for (const auto& resized : {imageResize32(image), imageResize128(image)}) {
        ASSERT_TRUE(resized);
        for (int x = 0; x < resized->width; ++x) {
            const Rgba p = pixelAt(*resized, x, resized->height / 2);
            if (p[3] > 0) {
                EXPECT_EQ((Rgba{p[0], p[1], p[2]}), (Rgba{0, 0, 255})) << x;
            }
        }
    }
}

TEST(ImageResize, EnlargingInterpolatesBetweenPixelCentres) {
    Image pair(2, 1);
    pair.pixel(0, 0)[3] = 255;             // black
    std::fill_n(pair.pixel(1, 0), 4, 255); // white
    const std::optional<Image> wide = imageResize32(pair);
    ASSERT_TRUE(wide);
    ASSERT_EQ(wide->width, 32);
    ASSERT_EQ(wide->height, 16);
    EXPECT_EQ(pixelAt(*wide, 0, 0)[0], 0); // outer pixels keep the edge colours
    EXPECT_EQ(pixelAt(*wide, 31, 15)[0], 255);
    for (int x = 1; x < 32; ++x) // and the ramp between rises steadily
        EXPECT_GE(pixelAt(*wide, x, 3)[0], pixelAt(*wide, x - 1, 3)[0]);
    EXPECT_NEAR(pixelAt(*wide, 16, 0)[0], 136, 1);

    // An image already at the target size is copied unchanged.
    Image exact = filled(64, 32, {1, 2, 3, 4});
    exact.pixel(5, 5)[0] = 99;
    EXPECT_EQ(imageResize64(exact)->pixels, exact.pixels);
}

} // namespace
} // namespace orrery
