#include "tools/surfaces/Atmosphere.h"

#include "tools/surfaces/Noise.h"

#include <cmath>

namespace orrery::surfaces {

Shader atmosphere(Atmosphere sky) {
    const Vec3 o1 = seedOffset(sky.seed);
    const Vec3 o2 = seedOffset(sky.seed + 1);
    return [sky = std::move(sky), o1, o2](const Vec3& p) {
        const Vec3 q = Vec3{p.x, p.y * sky.stretch, p.z} * sky.frequency + o1;
        const Vec3 first = warp(q, sky.swirl, 2, sky.seed);
        const Vec3 second = warp(first, sky.swirl * 0.6, 2, sky.seed + 5);
        const double swirls = fbm(second + o2, 3) + sky.detail * fbm(second * 6.0 + o1, 3);
        const double bands = std::sin(p.y * sky.bandFrequency + 2.0 * swirls);
        const double value =
            0.5 + 0.5 * sky.contrast * ((1.0 - sky.banding) * swirls * 1.4 + sky.banding * bands);
        const double polar = std::abs(p.y);
        return sky.palette.at(value) * (1.0 - sky.polarDarkening * polar * polar);
    };
}

} // namespace orrery::surfaces
