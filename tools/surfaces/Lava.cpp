#include "tools/surfaces/Lava.h"

#include "tools/surfaces/Noise.h"

#include <algorithm>

namespace orrery::surfaces {

Shader lava(Lava world) {
    const Vec3 o1 = seedOffset(world.seed);
    const Vec3 o2 = seedOffset(world.seed + 1);
    const Vec3 o3 = seedOffset(world.seed + 2);
    return [world = std::move(world), o1, o2, o3](const Vec3& p) {
        const Vec3 q = warp(p * world.plates + o1, 0.35, 3, world.seed);
        const CellDistances large = cells(q, world.seed);
        const CellDistances small = cells(q * 3.1 + o2, world.seed + 1);
        const double crack = 1.0 - smoothstep(0.0, world.crackWidth, large.f2 - large.f1);
        const double fine = 1.0 - smoothstep(0.0, world.crackWidth * 0.8, small.f2 - small.f1);
        const double activity = smoothstep(-0.3, 0.5, fbm(p * 3.0 + o3, 4));
        double heat = std::max(crack, 0.55 * fine) * (0.3 + 0.7 * activity);
        if (world.seas < 1.5) {
            // In the open seas the crust is thin: wide glowing gaps between dark rafts,
            // churning brighter and dimmer.
            const double sea = smoothstep(world.seas, world.seas + 0.15, fbm(p * 1.7 + o3, 5));
            const double rafts = smoothstep(0.05, 0.3, small.f2 - small.f1);
            const double churn = 0.5 + 0.5 * fbm(p * 9.0 + o1, 4);
            heat = std::max(heat, sea * (1.0 - 0.8 * rafts) * (0.4 + 0.6 * churn));
        }
        const Rgb rock = world.crust.at(0.5 + 0.6 * fbm(q * 2.0 + o2, 5));
        return mix(rock, world.glow.at(heat) * world.glowStrength, smoothstep(0.05, 0.6, heat));
    };
}

} // namespace orrery::surfaces
