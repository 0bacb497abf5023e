#pragma once

#include "core/model/Color.h"
#include "core/scene/Material.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How a planet record turns into a scene node: its name and its material.
namespace orrery {

inline constexpr double kTwoPi = 6.283185307179586;
inline constexpr double kGradientAngle = 270.0;

// "planet" followed by the tsecs text.
std::string planetNodeName(std::string_view tsecs);

// No material while no surface is chosen (the sphere stays plain white); otherwise the
// colour, or for a style of 1 or more the style's gradient drawn on a square as wide as
// the sphere's circumference, as diffuse, and the surface image as emission.
std::optional<Material> planetMaterial(Color color, std::int64_t styleIndex,
                                       std::int64_t surfaceIndex, float radius);

} // namespace orrery
