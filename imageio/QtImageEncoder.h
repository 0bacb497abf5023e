#pragma once

#include "core/export/ExportFormat.h"
#include "core/package/PictureText.h"
#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

#include <string>
#include <vector>

class QIODevice;

namespace orrery::imageio {

// BMP, JPEG, PNG and TIFF through Qt's image writers. PNG and TIFF keep the alpha channel;
// BMP and JPEG drop it. JPEG takes the compression factor (0 to 1) as its quality. The text
// fields go where the format has room for text: a PNG's text chunks (compressed when ASCII
// and 40 characters or longer), a JPEG's comment segments ("key: value", cut at 65,530
// bytes); Qt's TIFF writer drops them.
EncodedImage encodeWithQt(const Image& image, ExportFormat format, float compression,
                          const std::vector<PictureText>& texts = {});

// Whether Qt writes the format.
bool writtenByQt(ExportFormat format);
// The same encoding streamed into a device; an empty text, or why it failed.
std::string writeWithQt(const Image& image, ExportFormat format, float compression,
                        QIODevice& device, const std::vector<PictureText>& texts = {});

} // namespace orrery::imageio
