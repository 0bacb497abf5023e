#pragma once

#include "tools/surfaces/Shader.h"

#include <cstdint>

namespace orrery::surfaces {

// A world of seas and continents: land coloured by moisture, height and temperature,
// oceans by depth, frozen poles and a layer of clouds.
struct Terran {
    double seaLevel = 0.0;       // terrain height of the shore (noise units, about -0.5 to 0.5)
    double continentScale = 1.6; // frequency of the continents
    Ramp ocean;                  // from the coast (0) to the deep sea (1)
    Ramp land;                   // from dry (0) to wet (1)
    Rgb highland{};
    Rgb snow{};
    double temperature = 0.0; // added to the warmth everywhere
    double moisture = 0.0;    // added to the moisture everywhere
    double clouds = 0.3;      // share of the sky covered
    double cloudOpacity = 0.55;
    Rgb cloudColour{};
    std::uint32_t seed = 1;
};

Shader terran(Terran world);

} // namespace orrery::surfaces
