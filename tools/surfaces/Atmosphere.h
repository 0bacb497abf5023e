#pragma once

#include "tools/surfaces/Shader.h"

#include <cstdint>

namespace orrery::surfaces {

// A world wrapped in cloud: deeply warped fractal swirls drawn out east-west by the wind,
// with a hint of latitude bands.
struct Atmosphere {
    Ramp palette;
    double frequency = 2.0;
    double swirl = 1.0;   // strength of the domain warp
    double stretch = 2.5; // north-south compression of the features
    double banding = 0.3; // weight of the latitude bands
    double bandFrequency = 7.0;
    double contrast = 1.0;
    double detail = 0.08; // fine texture over the swirls
    double polarDarkening = 0.2;
    std::uint32_t seed = 1;
};

Shader atmosphere(Atmosphere sky);

} // namespace orrery::surfaces
