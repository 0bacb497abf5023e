#include "core/styles/Raster.h"
#include "core/styles/StyleImages.h"

#include <algorithm>
#include <cmath>

namespace orrery {
namespace {

// Channels of the dark backdrops are n/255 held in single precision, as stored.
constexpr double fraction(int value) {
    return static_cast<double>(static_cast<float>(value) / 255.0f);
}

constexpr Color kCheckerLight{static_cast<double>(0.99f), static_cast<double>(0.99f),
                              static_cast<double>(0.99f), 1.0};
constexpr Color kCheckerDark{0.75, 0.75, 0.75, 1.0};
constexpr double kCheckerSquare = 20.0;

// The solid backdrops; none for the checkerboard (0) and for unknown indices.
std::optional<Color> solidBackground(long index) {
    switch (index) {
    case 1:
        return Color{1.0, 1.0, 1.0, 1.0};
    case 2:
        return Color{0.0, 0.0, 0.0, 1.0};
    case 3:
        return Color{fraction(20), fraction(30), fraction(80), 1.0};
    case 4:
        return Color{fraction(15), fraction(10), fraction(50), 1.0};
    case 5:
        return Color{fraction(5), fraction(5), fraction(20), 1.0};
    case 6:
        return Color{1.0, 1.0, 0.0, 1.0};
    case 7:
        return Color{1.0, 0.5, 0.0, 1.0};
    case 8:
        return Color{0.0, 0.0, 1.0, 1.0};
    default:
        return std::nullopt;
    }
}

// Which square a pixel centre falls in along one axis, as 0 (even) or 1 (odd).
std::vector<std::uint8_t> squareParity(int pixels, double points, double squareWidth) {
    std::vector<std::uint8_t> parity(static_cast<std::size_t>(pixels));
    const double scale = points / pixels;
    for (int i = 0; i < pixels; ++i) {
        const double square = std::floor((i + 0.5) * scale / squareWidth);
        parity[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(std::fmod(square, 2.0));
    }
    return parity;
}

} // namespace

Image getCheckboard(Color color0, Color color1, double squareWidth, double width, double height) {
    Image image = raster::blankImage(width, height);
    if (image.isNull())
        return image;
    const raster::Pixel first = raster::toPixel(color0);
    const raster::Pixel second = raster::toPixel(color1);
    // Squares are counted from the top-left corner; the square there has colour0. A square
    // width that is not a positive number has no second square at all.
    if (!(squareWidth > 0.0) || !std::isfinite(squareWidth)) {
        raster::fillPixels(image.pixels.data(), image.pixels.size() / 4, first);
        return image;
    }
    const std::vector<std::uint8_t> columns = squareParity(image.width, width, squareWidth);
    const std::vector<std::uint8_t> rows = squareParity(image.height, height, squareWidth);
    // Only two distinct rows exist; build both once and copy them down the image.
    std::vector<std::uint8_t> patterns[2];
    for (int phase = 0; phase < 2; ++phase) {
        patterns[phase].resize(image.stride());
        for (int x = 0; x < image.width; ++x) {
            const bool odd = (columns[static_cast<std::size_t>(x)] ^ phase) != 0;
            raster::fillPixels(patterns[phase].data() + static_cast<std::size_t>(x) * 4, 1,
                               odd ? second : first);
        }
    }
    for (int y = 0; y < image.height; ++y)
        std::copy(patterns[rows[static_cast<std::size_t>(y)]].begin(),
                  patterns[rows[static_cast<std::size_t>(y)]].end(), image.pixel(0, y));
    return image;
}

Image createColorImage(double width, double height, Color color) {
    Image image = raster::blankImage(width, height);
    raster::fillPixels(image.pixels.data(), image.pixels.size() / 4, raster::toPixel(color));
    return image;
}

Image backgroundImage(long index, double width, double height) {
    if (const std::optional<Color> solid = solidBackground(index))
        return createColorImage(width, height, *solid);
    return getCheckboard(kCheckerLight, kCheckerDark, kCheckerSquare, width, height);
}

std::optional<Color> exportBackgroundColor(long index) {
    if (index < 1 || index > 5)
        return std::nullopt;
    return solidBackground(index);
}

} // namespace orrery
