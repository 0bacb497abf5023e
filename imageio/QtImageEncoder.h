#pragma once

#include "core/export/ExportFormat.h"
#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

#include <string>

class QIODevice;

namespace orrery::imageio {

// BMP, JPEG, PNG and TIFF through Qt's image writers. PNG and TIFF keep the alpha channel;
// BMP and JPEG drop it. JPEG takes the compression factor (0 to 1) as its quality.
EncodedImage encodeWithQt(const Image& image, ExportFormat format, float compression);

// Whether Qt writes the format.
bool writtenByQt(ExportFormat format);
// The same encoding streamed into a device; an empty text, or why it failed.
std::string writeWithQt(const Image& image, ExportFormat format, float compression,
                        QIODevice& device);
// A PNG written for speed, at zlib's fastest level (a fifth larger, twice as fast): one frame
// of a sequence that may hold hundreds.
std::string writeFramePng(const Image& image, QIODevice& device);

} // namespace orrery::imageio
