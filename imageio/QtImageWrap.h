#pragma once

#include "core/styles/Image.h"

#include <QImage>

#include <optional>

namespace orrery::imageio {

// The picture as a QImage that shares its pixels (no copy); valid while image lives.
QImage wrapImage(const Image& image);

// A deep copy of any QImage as straight-alpha RGBA, top row first; none for a null image.
// An image passed in alone (not shared) is converted in place, without a second copy.
std::optional<Image> imageFromQImage(QImage image);

} // namespace orrery::imageio
