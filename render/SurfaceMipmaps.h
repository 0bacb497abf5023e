#pragma once

#include "core/styles/Image.h"

namespace orrery::render {

// The next mipmap level of an sRGB-encoded surface: half the size (at least 1 pixel a
// side), each pixel the mean of the 2 x 2 block above it (of the pixels left at an odd
// edge), colour averaged in linear light as sRGB texture filtering does, alpha as it is.
// Made on the CPU one layer at a time, because generating mipmaps on the GPU redoes every
// layer of a texture array.
Image halvedSurface(const Image& image);

} // namespace orrery::render
