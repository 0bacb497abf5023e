#pragma once

#include "core/model/Color.h"

#include <QColor>

// The records keep colours as calibrated RGB from 0 to 1; these convert at the edge.
namespace orrery::window {

QColor toQColor(const Color& color);
Color fromQColor(const QColor& color);

} // namespace orrery::window
