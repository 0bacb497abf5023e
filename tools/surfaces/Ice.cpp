#include "tools/surfaces/Ice.h"

#include "tools/surfaces/Noise.h"

#include <algorithm>
#include <cmath>

namespace orrery::surfaces {

Shader ice(Ice shell) {
    const Vec3 o1 = seedOffset(shell.seed);
    const Vec3 o2 = seedOffset(shell.seed + 1);
    const Vec3 o3 = seedOffset(shell.seed + 2);
    return [shell = std::move(shell), o1, o2, o3](const Vec3& p) {
        Rgb colour = shell.ice.at(0.5 + 0.6 * fbm(p * 4.0 + o1, 6));
        // Three generations of cracks, the older ones fainter and finer.
        double frequency = shell.lineFrequency;
        double strength = shell.lineStrength;
        double width = shell.lineWidth;
        for (int generation = 0; generation < 3; ++generation) {
            const Vec3 q = warp(p * frequency + seedOffset(shell.seed + 10 + generation), 0.25, 3,
                                shell.seed + 20 + static_cast<std::uint32_t>(generation));
            const double crest = 1.0 - std::abs(simplex(q));
            const double line = smoothstep(1.0 - width, 1.0 - width * 0.25, crest);
            colour = mix(colour, shell.lines, line * strength);
            frequency *= 2.1;
            strength *= 0.6;
            width *= 0.8;
        }
        if (shell.chaos > 0.0) {
            const double patches = fbm(p * 2.2 + o2, 5);
            const double mottled = smoothstep(0.45 - shell.chaos, 0.6 - shell.chaos, patches);
            const Rgb blotch = shell.chaosColour * (0.8 + 0.4 * fbm(p * 25.0 + o3, 3));
            colour = mix(colour, blotch, mottled);
        }
        return colour;
    };
}

} // namespace orrery::surfaces
