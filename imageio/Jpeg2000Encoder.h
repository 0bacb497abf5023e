#pragma once

#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

namespace orrery::imageio {

// The compression ratio OpenJPEG is asked for at a compression factor from 0 to 1: 100:1
// at 0, about 16:1 at the usual 0.85 (close to what JPEG gives at quality 85), and 0 at
// 1, which means lossless.
float jpeg2000Ratio(float compression);

// A JP2 file (sRGB, 8 bits per sample) through OpenJPEG. The alpha channel is written
// only when some pixel is not opaque.
EncodedImage encodeJpeg2000(const Image& image, float compression);

} // namespace orrery::imageio
