#pragma once

#include "core/export/ExportFormat.h"
#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

namespace orrery::imageio {

// Encodes the picture in memory in one of the six formats. compression (0 to 1) is the
// JPEG quality and the JPEG 2000 rate; the other formats ignore it.
EncodedImage encodeImage(const Image& image, ExportFormat format, float compression);

} // namespace orrery::imageio
