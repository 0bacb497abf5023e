#pragma once

#include "tools/surfaces/Shader.h"

#include <cstdint>

namespace orrery::surfaces {

// An ice shell criss-crossed by long cracks and ridges, with mottled chaos terrain.
struct Ice {
    Ramp ice;    // the shell from low to high noise values
    Rgb lines{}; // stain along the cracks
    double lineFrequency = 2.5;
    double lineStrength = 0.8;
    double lineWidth = 0.05;
    double chaos = 0.0; // share of mottled terrain
    Rgb chaosColour{};
    std::uint32_t seed = 1;
};

Shader ice(Ice shell);

} // namespace orrery::surfaces
