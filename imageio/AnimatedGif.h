#pragma once

#include "imageio/AnimationWriter.h"

namespace orrery::imageio {

// An animated GIF89a that loops forever: each frame with its own palette of at most 256
// colours from libimagequant (or every frame with the loop's one palette), the transparent index
// where alpha is 0, and each frame clearing the last (so what was drawn never shows through
// transparent pixels). GIF counts time in hundredths of a second, so frames last 4 or 5 at 24 per
// second.
std::unique_ptr<AnimationWriter>
beginAnimatedGif(const std::string& path, const AnimationSettings& settings, std::string& error);

} // namespace orrery::imageio
