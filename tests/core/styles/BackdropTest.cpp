#include "core/styles/AxisCross.h"
#include "core/styles/StyleImages.h"
#include "tests/core/styles/PixelAt.h"

#include <gtest/gtest.h>

#include <set>

namespace orrery {
namespace {

using testing::pixelAt;
using testing::Rgba;

const Rgba kLight{252, 252, 252, 255}; // 0.99 grey
const Rgba kDark{191, 191, 191, 255};  // 0.75 grey

TEST(Checkerboard, TopLeftSquareAndTwentyPixelPeriod) {
    const Image board = backgroundImage(0, 100, 70);
    ASSERT_EQ(board.width, 100);
    ASSERT_EQ(board.height, 70);
    EXPECT_EQ(pixelAt(board, 0, 0), kLight);
    EXPECT_EQ(pixelAt(board, 19, 19), kLight);
    EXPECT_EQ(pixelAt(board, 20, 0), kDark);
    EXPECT_EQ(pixelAt(board, 0, 20), kDark);
    EXPECT_EQ(pixelAt(board, 20, 20), kLight);
    EXPECT_EQ(pixelAt(board, 99, 69), pixelAt(board, 59, 69 - 40));
    // Hard edges: only the two colours anywhere.
    std::set<Rgba> colours;
    for (int y = 0; y < board.height; ++y)
        for (int x = 0; x < board.width; ++x)
            colours.insert(pixelAt(board, x, y));
    EXPECT_EQ(colours, (std::set<Rgba>{kLight, kDark}));
}

TEST(Checkerboard, SquaresAreMeasuredInPoints) {
    // 7.5-point squares; pixel centres sit at half points (x) and at 1.0133-point steps (y,
    // 15.2 points over 15 pixels), so the first edge falls after pixel 6 on both axes.
    const Image board = getCheckboard({1, 0, 0, 1}, {0, 0, 1, 1}, 7.5, 30, 15.2);
    ASSERT_EQ(board.width, 30);
    ASSERT_EQ(board.height, 15);
    EXPECT_DOUBLE_EQ(board.pointHeight, 15.2);
    const Rgba red{255, 0, 0, 255};
    const Rgba blue{0, 0, 255, 255};
    EXPECT_EQ(pixelAt(board, 6, 6), red);
    EXPECT_EQ(pixelAt(board, 7, 0), blue);
    EXPECT_EQ(pixelAt(board, 6, 7), blue);
    EXPECT_EQ(pixelAt(board, 7, 7), red);
    EXPECT_EQ(pixelAt(board, 29, 14), red); // square (3, 1)
}

TEST(Checkerboard, EmptySizesAndOddSquareWidths) {
    EXPECT_TRUE(backgroundImage(0, 0, 300).isNull());
    EXPECT_TRUE(backgroundImage(0, 300, 0).isNull());
    EXPECT_TRUE(getCheckboard({}, {}, 20, 0, 0).pixels.empty());
    // A square width that is not positive has no second colour.
    const Image flat = getCheckboard({1, 1, 1, 1}, {0, 0, 0, 1}, 0, 10, 10);
    EXPECT_EQ(pixelAt(flat, 9, 9), (Rgba{255, 255, 255, 255}));
}

TEST(BackgroundImage, EveryIndexHasItsPicture) {
    const Rgba solid[] = {{255, 255, 255, 255}, {0, 0, 0, 255},  {20, 30, 80, 255},
                          {15, 10, 50, 255},    {5, 5, 20, 255}, {255, 255, 0, 255},
                          {255, 128, 0, 255},   {0, 0, 255, 255}};
    for (int index = 1; index <= 8; ++index)
        EXPECT_EQ(pixelAt(backgroundImage(index, 4, 4), 3, 3), solid[index - 1]) << index;
    // Unknown indices show the checkerboard, like 0.
    const Image transparent = backgroundImage(0, 45, 45);
    EXPECT_EQ(backgroundImage(9, 45, 45).pixels, transparent.pixels);
    EXPECT_EQ(backgroundImage(-1, 45, 45).pixels, transparent.pixels);
}

TEST(ExportBackgroundColor, SolidColoursOnlyForOneToFive) {
    EXPECT_FALSE(exportBackgroundColor(0));
    EXPECT_FALSE(exportBackgroundColor(6));
    EXPECT_FALSE(exportBackgroundColor(-1));
    EXPECT_EQ(exportBackgroundColor(1), kWhite);
    EXPECT_EQ(exportBackgroundColor(2), (Color{0, 0, 0, 1}));
    const std::optional<Color> navy = exportBackgroundColor(3);
    ASSERT_TRUE(navy);
    EXPECT_EQ(navy->red, 0.0784313753247261); // 20/255 in single precision
    EXPECT_EQ(exportBackgroundColor(5)->blue, static_cast<double>(20.0f / 255.0f));
}

TEST(CreateColorImage, FillsTheTruncatedSize) {
    const Image image = createColorImage(3.7, 2.2, {0.0, 0.5, 1.0, 0.5});
    ASSERT_EQ(image.width, 3);
    ASSERT_EQ(image.height, 2);
    EXPECT_EQ(pixelAt(image, 2, 1), (Rgba{0, 128, 255, 128}));
}

TEST(AxisCross, LabelsAndArrowsSitAtFixedOffsetsFromTheCentre) {
    const AxisCross cross = axisCross(400, 300);
    EXPECT_EQ(cross.labels[0].origin, (AxisPoint{365, 140}));
    EXPECT_EQ(cross.labels[1].origin, (AxisPoint{195, 315}));
    EXPECT_EQ(cross.labels[2].origin, (AxisPoint{195, 133}));
    EXPECT_EQ(cross.labels[2].color, kPureBlue);
    EXPECT_EQ(cross.xStrokes[0].to, (AxisPoint{360, 150}));
    EXPECT_EQ(cross.xStrokes[2].to, (AxisPoint{345, 145}));
    EXPECT_EQ(cross.yStrokes[1].to, (AxisPoint{205, 295}));
}

} // namespace
} // namespace orrery
