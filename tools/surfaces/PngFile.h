#pragma once

#include "core/styles/Image.h"

#include <QImage>
#include <QString>

namespace orrery::surfaces {

// A QImage over the image's pixels, without a copy; valid while the image lives.
QImage imageView(const Image& image);

// Writes a PNG through a temporary file that replaces the target only once it is
// complete. Returns an empty string on success, else what went wrong.
QString writePng(const QImage& image, const QString& path);

} // namespace orrery::surfaces
