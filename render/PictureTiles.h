#pragma once

#include "core/styles/Image.h"
#include "render/PlanetUniforms.h"

#include <cstdint>
#include <vector>

// A picture drawn in tiles: where they lie and how each joins the picture.
namespace orrery::render {

// The tiles, at most `side` pixels a side, that cover a width x height picture, in pixels
// from its bottom-left corner; listed top row first, left to right. Each tile starts at an
// even pixel, so that the 2 x 2 blocks in which a shader takes its slopes are the same in
// a tile as in the whole picture.
std::vector<PixelRect> pictureTiles(int width, int height, int side);

// Copies a tile's pixels, read back bottom row first, to their place in the picture (top
// row first).
void placeTile(const std::vector<std::uint8_t>& bottomUp, const PixelRect& tile, Image& picture);

} // namespace orrery::render
