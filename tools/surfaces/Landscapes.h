#pragma once

#include "tools/surfaces/Shader.h"

// Dry landscapes, each with a structure of its own.
namespace orrery::surfaces {

Shader duneSea();     // sand seas of long parallel dunes around dark rock outcrops
Shader canyonlands(); // layered plateaus cut by a branching canyon network
Shader saltFlats();   // a dried lake bed of polygon cracks and brine pools

} // namespace orrery::surfaces
