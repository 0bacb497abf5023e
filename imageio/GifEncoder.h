#pragma once

#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

#include "imageio/GifPalette.h"

#include <string>
#include <vector>

struct GifFileType;
struct ColorMapObject;

namespace orrery::imageio {

inline constexpr int kMaxGifSide = 65535;

// A GIF89a picture with at most 256 colours chosen by libimagequant. Pixels whose alpha is
// 0 share one transparent palette index; every other pixel is written opaque in its own
// (straight) colour, since GIF knows no partial transparency. Sides from 1 to 65535.
EncodedImage encodeGif(const Image& image);

// The pieces a still and an animated GIF share. giflib's error code as a phrase:
std::string gifErrorText(int code);
// A colour map for the palette, padded to the power of two giflib wants; null when out of
// memory. The caller frees it with GifFreeMapObject.
ColorMapObject* makeGifColorMap(const std::vector<PaletteColor>& palette);
// The image's rows of palette indices, top first; an empty text, or why they failed.
std::string putGifRows(GifFileType* gif, const std::vector<std::uint8_t>& indices, int width,
                       int height);

} // namespace orrery::imageio
