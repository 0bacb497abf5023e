#include "render/PictureTiles.h"

#include <algorithm>
#include <cstring>

namespace orrery::render {

std::vector<PixelRect> pictureTiles(int width, int height, int side) {
    side = std::max(2, side - side % 2);
    std::vector<PixelRect> tiles;
    const int rows = (height + side - 1) / side;
    for (int row = rows - 1; row >= 0; --row)
        for (int x = 0; x < width; x += side)
            tiles.push_back(
                {x, row * side, std::min(side, width - x), std::min(side, height - row * side)});
    return tiles;
}

void placeTile(const std::vector<std::uint8_t>& bottomUp, const PixelRect& tile, Image& picture) {
    const std::size_t rowBytes = static_cast<std::size_t>(tile.width) * 4;
    for (int row = 0; row < tile.height; ++row)
        std::memcpy(picture.pixel(tile.x, picture.height - 1 - (tile.y + row)),
                    bottomUp.data() + rowBytes * static_cast<std::size_t>(row), rowBytes);
}

} // namespace orrery::render
