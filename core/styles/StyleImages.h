#pragma once

#include "core/model/Color.h"
#include "core/styles/GradientLibrary.h"
#include "core/styles/Image.h"

#include <optional>
#include <vector>

namespace orrery {

// A gradient drawn into a width x height image (pixel size truncated toward zero, point
// size kept) at an angle in degrees, counter-clockwise from +x with y up; the start and
// end lines touch opposite corners, so 270 puts location 0 along the top edge and 1
// along the bottom. Colours interpolate in sRGB; stops are sorted by location, ties in
// list order. No gradient gives a fully transparent image of the requested size.
Image makeGradientImage(const std::optional<Gradient>& gradient, double width, double height,
                        double angle);

// The same for a stop list in the dictionary-of-texts form (the decorative panels).
Image createGradientImage(const std::vector<GradientStopText>& stops, double width, double height,
                          double angle);

// Squares of squareWidth in two colours with hard edges, a square corner at the top-left;
// width or height 0 gives an empty image.
Image getCheckboard(Color color0, Color color1, double squareWidth, double width, double height);

// An image of the size filled with one colour.
Image createColorImage(double width, double height, Color color);

// The backdrop behind the scene for a background index: 0 (and any unknown index) the
// checkerboard, 1 white, 2 black, 3 to 5 the navy blues, 6 yellow, 7 orange, 8 blue.
Image backgroundImage(long index, double width, double height);

// The solid colour laid under an exported picture for backgrounds 1 to 5; none for 0
// and anything else.
std::optional<Color> exportBackgroundColor(long index);

// Scales so that the longer side becomes the target size, keeping the aspect ratio, with
// high-quality filtering. An invalid image is refused with the log line "Invalid Image".
std::optional<Image> imageResize32(const Image& image);
std::optional<Image> imageResize64(const Image& image);
std::optional<Image> imageResize128(const Image& image);
// The same for any target size (none for a target below 1).
std::optional<Image> imageResize(const Image& image, int target);

} // namespace orrery
