#pragma once

#include "core/styles/Image.h"

#include <QImage>
#include <QStringList>
#include <vector>

namespace orrery::surfaces {

// All surfaces on one page for review: a grid of thumbnails, each labelled with its
// number and name. Needs a QGuiApplication (for the fonts).
QImage contactSheet(const std::vector<Image>& thumbnails, const QStringList& labels);

} // namespace orrery::surfaces
