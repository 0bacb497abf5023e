#pragma once

#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

namespace orrery::imageio {

// A GIF89a picture with at most 256 colours chosen by libimagequant. Pixels whose alpha is
// 0 share one transparent palette index; every other pixel is written opaque in its own
// (straight) colour, since GIF knows no partial transparency. Sides from 1 to 65535.
EncodedImage encodeGif(const Image& image);

} // namespace orrery::imageio
