#include "core/export/ExportPicture.h"

#include <gtest/gtest.h>

#include <array>

namespace orrery {
namespace {

using Rgba = std::array<int, 4>;

Rgba at(const Image& image, int x, int y) {
    const std::uint8_t* p = image.pixel(x, y);
    return {p[0], p[1], p[2], p[3]};
}

void set(Image& image, int x, int y, Rgba value) {
    std::uint8_t* p = image.pixel(x, y);
    for (int c = 0; c < 4; ++c)
        p[c] = static_cast<std::uint8_t>(value[static_cast<std::size_t>(c)]);
}

// Three pixels: empty space, a planet's opaque inside, a half-covered edge.
Image scenePicture() {
    Image image(3, 1);
    set(image, 0, 0, {0, 0, 0, 0});
    set(image, 1, 0, {200, 100, 50, 255});
    set(image, 2, 0, {255, 0, 0, 128});
    return image;
}

TEST(OverImage, OpaqueColourMakesEveryPixelOpaque) {
    const Image result = overImage3(scenePicture(), Color{0.0, 0.0, 1.0, 1.0});
    EXPECT_EQ(at(result, 0, 0), (Rgba{0, 0, 255, 255}));
    EXPECT_EQ(at(result, 1, 0), (Rgba{200, 100, 50, 255}));
    // Half red over blue: both halves, rounded.
    EXPECT_EQ(at(result, 2, 0), (Rgba{128, 0, 127, 255}));
    EXPECT_EQ(result.width, 3);
    EXPECT_EQ(result.height, 1);
}

TEST(OverImage, TranslucentColourStaysStraight) {
    // Half-transparent white under empty space shows as itself, not darkened.
    const Image result = overImage3(scenePicture(), Color{1.0, 1.0, 1.0, 0.5});
    EXPECT_EQ(at(result, 0, 0), (Rgba{255, 255, 255, 128}));
    EXPECT_EQ(at(result, 1, 0), (Rgba{200, 100, 50, 255}));
    const Rgba edge = at(result, 2, 0);
    EXPECT_EQ(edge[0], 255);
    EXPECT_NEAR(edge[1], 85, 1); // white weighs 64 of 192 parts
    EXPECT_NEAR(edge[3], 192, 1);
}

TEST(ExportPicture, NavyBackgroundIsLaidUnderWhenAskedFor) {
    const Image laid = exportPicture(scenePicture(), 3, true);
    EXPECT_EQ(at(laid, 0, 0), (Rgba{20, 30, 80, 255}));
    EXPECT_EQ(at(laid, 1, 0), (Rgba{200, 100, 50, 255}));
    const Image black = exportPicture(scenePicture(), 2, true);
    EXPECT_EQ(at(black, 0, 0), (Rgba{0, 0, 0, 255}));
}

TEST(ExportPicture, TransparencyKeptWithoutBackgroundColour) {
    const Image picture = scenePicture();
    // Not asked for: the scene's transparency is kept, whatever the background.
    EXPECT_EQ(exportPicture(picture, 3, false).pixels, picture.pixels);
    // Transparent background: nothing to lay under, even when asked for.
    EXPECT_EQ(exportPicture(picture, 0, true).pixels, picture.pixels);
    // Yellow exists in the scene but is never offered for export.
    EXPECT_EQ(exportPicture(picture, 6, true).pixels, picture.pixels);
}

} // namespace
} // namespace orrery
