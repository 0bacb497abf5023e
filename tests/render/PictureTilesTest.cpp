#include "render/PictureTiles.h"

#include <gtest/gtest.h>

#include <vector>

namespace orrery::render {
namespace {

// Every pixel lies in exactly one tile, each tile starts at an even pixel, and the top row
// comes first.
TEST(PictureTiles, CoverThePictureOnceFromEvenPixels) {
    for (const auto& [width, height, side] : {std::tuple{10, 7, 4}, {9, 9, 3}, {5, 3, 100}}) {
        const std::vector<PixelRect> tiles = pictureTiles(width, height, side);
        std::vector<int> covered(static_cast<std::size_t>(width * height), 0);
        for (const PixelRect& tile : tiles) {
            EXPECT_EQ(tile.x % 2, 0);
            EXPECT_EQ(tile.y % 2, 0);
            for (int y = tile.y; y < tile.y + tile.height; ++y)
                for (int x = tile.x; x < tile.x + tile.width; ++x)
                    ++covered[static_cast<std::size_t>(y * width + x)];
        }
        EXPECT_EQ(std::count(covered.begin(), covered.end(), 1), width * height);
        EXPECT_EQ(tiles.front().y + tiles.front().height, height);
    }
}

// A tile read back bottom row first lands upright at its place in the picture.
TEST(PictureTiles, PlaceTileTurnsItsRowsUpright) {
    Image picture(4, 3);
    const PixelRect tile{2, 0, 2, 2}; // the bottom-right corner
    std::vector<std::uint8_t> bottomUp(16);
    for (std::size_t i = 0; i < bottomUp.size(); ++i)
        bottomUp[i] = static_cast<std::uint8_t>(i + 1);
    placeTile(bottomUp, tile, picture);
    EXPECT_EQ(picture.pixel(2, 2)[0], 1);  // the first row read is the picture's last
    EXPECT_EQ(picture.pixel(3, 1)[3], 16); // the second row read lies above it
    EXPECT_EQ(picture.pixel(1, 2)[0], 0);
}

} // namespace
} // namespace orrery::render
