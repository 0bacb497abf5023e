#pragma once

#include "core/styles/Image.h"

#include <functional>
#include <string>

namespace orrery {

// Looks up a surface image by name ("Surface001" ...). The answer may be null (no such
// image) and need only stay valid until the source is asked again; the renderer copies
// what it needs at once.
using SurfaceSource = std::function<const Image*(const std::string& surfaceName)>;

} // namespace orrery
