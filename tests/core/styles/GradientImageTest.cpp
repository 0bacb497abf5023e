#include "core/styles/StyleImages.h"
#include "tests/core/styles/PixelAt.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace orrery {
namespace {

using testing::channelDistance;
using testing::pixelAt;
using testing::Rgba;

Rgba opaque(int r, int g, int b) {
    return {r, g, b, 255};
}

Rgba firstColour(std::int64_t number) {
    const auto stops = gradientLibrary::stopsOf(number);
    return opaque(std::stoi(stops.front().red), std::stoi(stops.front().green),
                  std::stoi(stops.front().blue));
}

// The colour of the stop at the highest position (the end of the gradient).
Rgba lastColour(std::int64_t number) {
    const auto stops = gradientLibrary::stopsOf(number);
    const auto last = std::max_element(stops.begin(), stops.end(), [](auto& a, auto& b) {
        return std::stod(a.position) < std::stod(b.position);
    });
    return opaque(std::stoi(last->red), std::stoi(last->green), std::stoi(last->blue));
}

// Black at 0 to white at 1: a pixel's grey level is its location times 255.
std::optional<Gradient> blackToWhite() {
    return Gradient{{{0, 0, 0, 1, 0.0}, {1, 1, 1, 1, 1.0}}};
}

int grey(const Image& image, int x, int y) {
    return pixelAt(image, x, y)[0];
}

TEST(MakeGradientImage, PixelSizeIsTruncatedAndPointSizeKept) {
    const Image image = makeGradientImage(gradientLibrary().getGradient(0), 150.796, 150.796, 270);
    EXPECT_EQ(image.width, 150);
    EXPECT_EQ(image.height, 150);
    EXPECT_DOUBLE_EQ(image.pointWidth, 150.796);
    EXPECT_DOUBLE_EQ(image.pointHeight, 150.796);
    EXPECT_EQ(image.pixels.size(), 150u * 150u * 4u);

    EXPECT_TRUE(makeGradientImage(blackToWhite(), 0.9, 10, 270).isNull());
    EXPECT_TRUE(makeGradientImage(blackToWhite(), -5, 10, 270).isNull());
    EXPECT_TRUE(makeGradientImage(blackToWhite(), std::nan(""), 10, 270).isNull());
}

TEST(MakeGradientImage, MissingGradientGivesATransparentImageOfTheSize) {
    const Image image = makeGradientImage(gradientLibrary().getGradient(85), 64, 64, 270);
    EXPECT_EQ(image.width, 64);
    EXPECT_EQ(image.height, 64);
    EXPECT_TRUE(std::all_of(image.pixels.begin(), image.pixels.end(),
                            [](std::uint8_t v) { return v == 0; }));
}

TEST(MakeGradientImage, At270PositionZeroIsAtTheTopAndOneAtTheBottom) {
    // Rows sample their centres, so the top row sits half a row below location 0; in
    // 4000 rows that moves the steepest catalogue gradient (row 84's end) by one level.
    const gradientLibrary library;
    for (std::int64_t n = 0; n < gradientLibrary::kCatalogueSize; ++n) {
        const Image image = makeGradientImage(library.getGradient(n), 3, 4000, 270);
        for (int x = 0; x < 3; ++x) {
            EXPECT_LE(channelDistance(pixelAt(image, x, 0), firstColour(n)), 2) << "row " << n;
            EXPECT_LE(channelDistance(pixelAt(image, x, 3999), lastColour(n)), 2) << "row " << n;
        }
    }
    // The planet texture of a new planet (radius 24) shows the same.
    const Image planet = makeGradientImage(library.getGradient(0), 150.796, 150.796, 270);
    EXPECT_LE(channelDistance(pixelAt(planet, 75, 0), opaque(158, 86, 34)), 1);
    EXPECT_LE(channelDistance(pixelAt(planet, 75, 149), opaque(0, 42, 58)), 1);
}

TEST(MakeGradientImage, FirstColourFillsTheStartBeforeTheFirstStop) {
    const gradientLibrary library;
    // Row 2 starts at 0.012365: the first 12 of 1000 rows lie before it.
    const Image row2 = makeGradientImage(library.getGradient(2), 2, 1000, 270);
    for (int y = 0; y < 12; ++y)
        EXPECT_EQ(pixelAt(row2, 0, y), opaque(224, 91, 19)) << y;
    EXPECT_NE(pixelAt(row2, 0, 13), opaque(224, 91, 19));
    // Row 45 starts at 0.001054 and row 53 at 0.002165.
    EXPECT_EQ(pixelAt(makeGradientImage(library.getGradient(45), 2, 1000, 270), 1, 0),
              opaque(120, 25, 0));
    const Image row53 = makeGradientImage(library.getGradient(53), 2, 1000, 270);
    EXPECT_EQ(pixelAt(row53, 0, 0), opaque(71, 190, 240));
    EXPECT_EQ(pixelAt(row53, 0, 1), opaque(71, 190, 240));
}

TEST(MakeGradientImage, AxisAnglesRunWhereThePlatformRunsThem) {
    const Image right = makeGradientImage(blackToWhite(), 100, 50, 0);
    EXPECT_LE(grey(right, 0, 0), 2);
    EXPECT_GE(grey(right, 99, 49), 253);
    EXPECT_EQ(grey(right, 30, 0), grey(right, 30, 49)); // constant down each column

    const Image up = makeGradientImage(blackToWhite(), 100, 50, 90);
    EXPECT_LE(grey(up, 50, 49), 3);
    EXPECT_GE(grey(up, 50, 0), 252);
    EXPECT_EQ(grey(up, 0, 20), grey(up, 99, 20)); // constant along each row

    const Image left = makeGradientImage(blackToWhite(), 100, 50, 180);
    EXPECT_GE(grey(left, 0, 25), 253);
    EXPECT_LE(grey(left, 99, 25), 2);

    // Angles wrap around: -90 and 630 are 270.
    const Image down = makeGradientImage(blackToWhite(), 10, 40, 270);
    EXPECT_EQ(makeGradientImage(blackToWhite(), 10, 40, -90).pixels, down.pixels);
    EXPECT_EQ(makeGradientImage(blackToWhite(), 10, 40, 630).pixels, down.pixels);
}

TEST(MakeGradientImage, ObliqueAnglesSpanCornerToCorner) {
    // 45 degrees on a square: bottom-left is the start, top-right the end, and the other
    // two corners lie on the middle line.
    const Image diagonal = makeGradientImage(blackToWhite(), 100, 100, 45);
    EXPECT_LE(grey(diagonal, 0, 99), 2);
    EXPECT_GE(grey(diagonal, 99, 0), 253);
    EXPECT_NEAR(grey(diagonal, 0, 0), 128, 1);
    EXPECT_NEAR(grey(diagonal, 99, 99), 128, 1);
    // Any pixel: location = (x + 0.5 + 100 - (y + 0.5)) / 200.
    for (int y = 0; y < 100; y += 7)
        for (int x = 0; x < 100; x += 11)
            EXPECT_NEAR(grey(diagonal, x, y), (x - y + 100) / 200.0 * 255.0, 1.0) << x << "," << y;
}

TEST(MakeGradientImage, OutOfOrderStopsAreSortedWithTiesInListOrder) {
    // Listed 0, 1, 0.5: drawn as 0, 0.5, 1, so the middle row (location exactly 0.5 of
    // 101 rows) is the red of the stop listed last.
    const Gradient unsorted{{{0, 0, 0, 1, 0.0}, {1, 1, 1, 1, 1.0}, {1, 0, 0, 1, 0.5}}};
    EXPECT_EQ(pixelAt(makeGradientImage(unsorted, 1, 101, 270), 0, 50), opaque(255, 0, 0));

    // Two stops at 0.5, blue listed before green: blue is approached from above, green
    // holds from the tie on. A hard edge with no mixed row in between.
    const Gradient tie{
        {{1, 0, 0, 1, 0.0}, {0, 0, 1, 1, 0.5}, {0, 1, 0, 1, 0.5}, {0, 1, 0, 1, 1.0}}};
    const Image edge = makeGradientImage(tie, 1, 1000, 270);
    EXPECT_LE(channelDistance(pixelAt(edge, 0, 499), opaque(0, 0, 255)), 1);
    EXPECT_EQ(pixelAt(edge, 0, 500), opaque(0, 255, 0));

    // Catalogue row 9 lists 0.9 third: around location 0.8 the colour lies between the
    // stops at 0.713574 (247, 201, 79) and 0.9 (94, 5, 0).
    const Image row9 = makeGradientImage(gradientLibrary().getGradient(9), 1, 1000, 270);
    const Rgba at80 = pixelAt(row9, 0, 800);
    EXPECT_LT(at80[0], 247);
    EXPECT_GT(at80[0], 94);
}

TEST(MakeGradientImage, InterpolatesAlphaAndKeepsItStraight) {
    const Gradient fade{{{1, 0.5, 0, 0, 0.0}, {1, 0.5, 0, 1, 1.0}}};
    const Image image = makeGradientImage(fade, 1, 101, 270);
    EXPECT_EQ(pixelAt(image, 0, 50), (Rgba{255, 128, 0, 128}));
}

TEST(CreateGradientImage, DrawsStopRecords) {
    const std::vector<GradientStopText> stops{{"0", "0", "0", "100", "0"},
                                              {"255", "255", "255", "100", "1"}};
    const Image fromRecords = createGradientImage(stops, 40, 30, 60);
    EXPECT_EQ(fromRecords.pixels, makeGradientImage(blackToWhite(), 40, 30, 60).pixels);
    EXPECT_EQ(createGradientImage({}, 8, 8, 60).pixels, std::vector<std::uint8_t>(8 * 8 * 4, 0));
}

} // namespace
} // namespace orrery
