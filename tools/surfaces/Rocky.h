#pragma once

#include "tools/surfaces/Craters.h"
#include "tools/surfaces/Shader.h"

#include <cstdint>
#include <optional>

namespace orrery::surfaces {

// An airless or dusty rocky body: warped fractal terrain with ridges, dark smooth basins,
// craters with relief shading, and optional polar frost.
struct Rocky {
    Ramp albedo; // colours of the terrain from low to high values
    double frequency = 3.0;
    double ridges = 0.3; // share of ridged mountain chains in the terrain value
    double warpAmount = 0.3;
    double contrast = 1.0;
    double basinLevel = 2.0; // terrain noise above this becomes a dark basin (2: none)
    double basinScale = 1.3; // frequency of the basins
    Rgb basinColour{};
    std::optional<CraterField> craters;
    double craterRelief = 0.12;
    double craterFloor = 0.15; // darkening of crater floors
    double ejecta = 0.1;       // brightening around fresh craters
    double grain = 0.05;       // fine speckle
    double polarCaps = 2.0;    // |sin latitude| where frost begins (2: none)
    Rgb capColour{};
    std::uint32_t seed = 1;
};

Shader rocky(Rocky body);

} // namespace orrery::surfaces
