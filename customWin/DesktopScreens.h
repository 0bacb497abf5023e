#pragma once

#include "core/app/ScreenRect.h"

#include <QRect>

#include <vector>

// The desktop's screens and frames in the core's terms.
namespace orrery::window {

ScreenRect toScreenRect(const QRect& rect);
QRect toQRect(const ScreenRect& rect);

// The available areas of the screens there are today, the primary one first.
std::vector<ScreenRect> availableScreens();

} // namespace orrery::window
