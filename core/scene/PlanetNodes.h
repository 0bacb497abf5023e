#pragma once

#include "core/model/Color.h"
#include "core/scene/Material.h"
#include "core/scene/SceneNode.h"

#include <cstdint>
#include <memory>
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

// Texts become numbers through a single-precision conversion, then serve as doubles.
double sceneNumber(std::string_view text);

// A planet's node, a sphere at its position with its material, not yet in any scene.
std::shared_ptr<SceneNode> makePlanetNode(std::string_view tsecs, Color color,
                                          std::int64_t styleIndex, std::int64_t surfaceIndex,
                                          std::string_view x, std::string_view y,
                                          std::string_view z, std::string_view radius);

} // namespace orrery
