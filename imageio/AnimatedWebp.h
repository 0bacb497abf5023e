#pragma once

#include "imageio/AnimationWriter.h"

namespace orrery::imageio {

// An animated WebP that loops forever, through libwebp's animation encoder: lossless at
// compression 1, else lossy at that quality; the alpha channel whole either way. The encoder
// keeps each frame compressed (and the last one whole, to compare the next against), so
// memory grows with the file, not with the frames' pixels.
std::unique_ptr<AnimationWriter>
beginAnimatedWebp(const std::string& path, const AnimationSettings& settings, std::string& error);

} // namespace orrery::imageio
