#pragma once

#include "tools/surfaces/Shader.h"

// Bodies that follow no common pattern.
namespace orrery::surfaces {

Shader volcanicMoon(); // sulphur plains pocked with calderas and ringed plume deposits
Shader crystalWorld(); // a faceted crust of large crystals
Shader eyeball();      // tidally locked: a scorched day side, a living ring, an icy night
Shader frostHeart();   // a bright nitrogen plain beside dark tholin highlands
Shader obsidian();     // black volcanic glass with glowing violet veins

} // namespace orrery::surfaces
