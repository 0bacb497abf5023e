#pragma once

#include "core/styles/Image.h"

#include <QIcon>
#include <QPixmap>

#include <cstdint>

namespace orrery::window {

// The pictures of the style and surface choices, made once and kept: a gradient swatch per
// style (1 to 82) and a thumbnail per surface (1 to 48). Index 0 ("- Select one -") and
// unknown indices have none.
QPixmap styleSwatch(long index, int side);
// A style's gradient as a square of that many pixels, top to bottom as a planet wears it.
Image styleSwatchImage(std::int64_t index, double pixels);
QPixmap surfaceSwatch(long index, int height);

// True when some screen has more than one device pixel per point; the menus then show
// their pictures at twice the detail.
bool isRetina();

} // namespace orrery::window
