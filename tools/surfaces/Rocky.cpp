#include "tools/surfaces/Rocky.h"

#include "tools/surfaces/Noise.h"

#include <cmath>

namespace orrery::surfaces {

Shader rocky(Rocky body) {
    const Vec3 o1 = seedOffset(body.seed);
    const Vec3 o2 = seedOffset(body.seed + 1);
    const Vec3 o3 = seedOffset(body.seed + 2);
    const Vec3 o4 = seedOffset(body.seed + 3);
    return [body = std::move(body), o1, o2, o3, o4](const Vec3& p) {
        const Vec3 q = warp(p * body.frequency + o1, body.warpAmount, 3, body.seed);
        const double base = fbm(q, 6);
        const double ridge = ridged(q * 1.7 + o2, 5);
        const double value =
            0.5 + body.contrast * (0.5 * base * (1.0 - body.ridges) + (ridge - 0.45) * body.ridges);
        Rgb colour = body.albedo.at(value);

        double basin = 0.0;
        if (body.basinLevel < 1.5) {
            const double level = fbm(p * body.basinScale + o3, 5);
            basin = smoothstep(body.basinLevel - 0.15, body.basinLevel + 0.15, level);
            const double flow = fbm(p * 9.0 + o3, 4);
            const Rgb floor = body.basinColour * (0.7 + 0.5 * value + 0.15 * flow);
            colour = mix(colour, floor, basin * 0.9);
        }
        if (body.craters) {
            const CraterSample c = sampleCraters(*body.craters, p);
            // Basins are younger than the highlands and keep fewer marks.
            const double keep = 1.0 - 0.6 * basin;
            colour = colour * (1.0 + body.craterRelief * c.shade * keep);
            colour = colour * (1.0 - body.craterFloor * c.floor * keep);
            colour = colour * (1.0 + body.ejecta * std::min(c.ejecta, 1.5) * keep);
        }
        colour = colour * (1.0 + body.grain * simplex(p * 190.0 + o4));
        if (body.polarCaps < 1.5) {
            const double latitude = std::abs(p.y) + 0.04 * fbm(p * 7.0 + o4, 4);
            const double cap = smoothstep(body.polarCaps, body.polarCaps + 0.025, latitude);
            colour = mix(colour, body.capColour * (0.92 + 0.16 * value), cap);
        }
        return colour;
    };
}

} // namespace orrery::surfaces
