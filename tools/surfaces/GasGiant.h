#pragma once

#include "tools/surfaces/Shader.h"

#include <cstdint>
#include <vector>

namespace orrery::surfaces {

// An oval storm with a body of its own colour and a pale collar; the bands around it are
// wound into it.
struct Storm {
    double latitude = 0.0;  // degrees
    double longitude = 0.0; // degrees
    double radius = 0.1;    // north-south half size, radians
    double aspect = 1.5;    // east-west size relative to north-south
    double spin = 3.0;      // winding at the centre, radians
    Rgb tint{};
    double tintAmount = 0.0;
};

// A banded giant: zones and belts of irregular width whose edges wander with east-west
// stretched turbulence, sheared by jet streams, with storms large and small.
struct GasGiant {
    Ramp palette;             // belts at the low end, zones at the high end
    double bands = 6.0;       // band frequency across the latitudes
    double sharpness = 1.2;   // how crisply belts and zones part
    double turbulence = 0.06; // how far the band edges wander
    double streaks = 0.1;     // strength of fine east-west streaks
    double swirl = 0.6;       // domain warp that curls the band edges
    double polarDarkening = 0.3;
    std::vector<Storm> storms;
    int scatteredStorms = 0; // small pale ovals at random
    Rgb scatteredTint{0.8, 0.78, 0.72};
    std::uint32_t seed = 1;
};

Shader gasGiant(GasGiant giant);

} // namespace orrery::surfaces
