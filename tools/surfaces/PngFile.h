#pragma once

#include "core/styles/Image.h"

#include <QImage>
#include <QString>

namespace orrery::surfaces {

// A QImage over the image's pixels, without a copy; valid while the image lives.
QImage imageView(const Image& image);

// Writes a PNG through a temporary file that replaces the target only once it is
// complete. Returns an empty string on success, else what went wrong.
enum class PngCompression { Compressed, Stored };
QString writePng(const QImage& image, const QString& path,
                 PngCompression compression = PngCompression::Compressed);

} // namespace orrery::surfaces
