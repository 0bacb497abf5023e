#pragma once

#include "core/styles/Image.h"

namespace orrery::render {

// The image scaled to width x height: bilinear when enlarging, averaged over each target
// pixel's footprint when shrinking, so fine detail does not alias. Rows wrap around
// horizontally, as an equirectangular surface does.
Image resampled(const Image& source, int width, int height);

} // namespace orrery::render
