#pragma once

#include "tools/surfaces/Shader.h"

#include <cstdint>

namespace orrery::surfaces {

// Crust broken into plates with molten rock glowing in the cracks between them, and
// optionally open lava seas.
struct Lava {
    Ramp crust;          // dark rock, from low to high noise values
    Ramp glow;           // molten colour from dim (0) to hottest (1)
    double plates = 5.0; // plates per unit of distance
    double crackWidth = 0.08;
    double seas = 2.0; // noise level above which the lava lies open (2: none)
    double glowStrength = 1.0;
    std::uint32_t seed = 1;
};

Shader lava(Lava world);

} // namespace orrery::surfaces
