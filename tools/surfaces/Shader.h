#pragma once

#include "tools/surfaces/Palette.h"
#include "tools/surfaces/Vec3.h"

#include <functional>

namespace orrery::surfaces {

// The colour of a surface at a point of the unit sphere (+y north).
using Shader = std::function<Rgb(const Vec3&)>;

} // namespace orrery::surfaces
