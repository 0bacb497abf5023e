#pragma once

#include "core/styles/Image.h"

#include <functional>
#include <optional>
#include <string>

namespace orrery {

// Decodes a surface image by name ("Surface001" ...); none when there is no such image.
// The renderer asks once for each surface that planets start to use, uploads the pixels
// and lets the image go, so the surface costs memory only where it is drawn from.
using SurfaceSource = std::function<std::optional<Image>(const std::string& surfaceName)>;

} // namespace orrery
