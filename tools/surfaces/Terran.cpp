#include "tools/surfaces/Terran.h"

#include "tools/surfaces/Noise.h"
#include "tools/surfaces/Vortex.h"

#include <algorithm>
#include <cmath>

namespace orrery::surfaces {
namespace {

// Deserts gather in the subtropics, rain forests at the equator.
double aridity(double latitude) {
    return 0.35 * std::exp(-std::pow((latitude - 0.42) / 0.15, 2.0));
}

} // namespace

Shader terran(Terran world) {
    const Vec3 o1 = seedOffset(world.seed);
    const Vec3 o2 = seedOffset(world.seed + 1);
    const Vec3 o3 = seedOffset(world.seed + 2);
    const Vec3 o4 = seedOffset(world.seed + 3);
    const Vec3 o5 = seedOffset(world.seed + 4);
    std::vector<Vortex> cyclones = scatterVortices(5, 15.0, 55.0, 0.1, 0.16, 3.5, world.seed);
    return [world = std::move(world), cyclones = std::move(cyclones), o1, o2, o3, o4,
            o5](const Vec3& p) {
        const Vec3 q = warp(p * world.continentScale + o1, 0.3, 3, world.seed);
        const double mountains = ridged(q * 2.5 + o2, 5);
        const double height =
            fbm(q, 7) + 0.16 * mountains * smoothstep(0.0, 0.3, fbm(q * 0.7 + o3, 3));
        const double latitude = std::abs(p.y);
        const double warmth =
            1.0 - 1.25 * latitude * latitude + world.temperature + 0.1 * fbm(p * 3.0 + o4, 3);

        Rgb colour;
        if (height < world.seaLevel) {
            const double depth = clamp01((world.seaLevel - height) / 0.3);
            colour = world.ocean.at(depth);
            const double floes = 0.75 + 0.3 * fbm(p * 14.0 + o2, 4);
            colour = mix(colour, world.snow * floes, smoothstep(-0.14, -0.24, warmth));
        } else {
            const double elevation = (height - world.seaLevel) / 0.45;
            const double wet =
                0.5 + 0.7 * fbm(p * 2.4 + o5, 5) + world.moisture - aridity(latitude);
            colour = world.land.at(wet);
            colour = mix(colour, world.highland, smoothstep(0.35, 0.8, elevation));
            const double cold = warmth - 0.35 * elevation;
            colour =
                mix(colour, world.snow * (0.9 + 0.2 * mountains), smoothstep(0.0, -0.12, cold));
        }
        if (world.clouds > 0.0) {
            // Cyclones wind the clouds into spiral arms around a cloudy core.
            Vec3 c = p;
            double core = 0.0;
            for (const Vortex& v : cyclones) {
                const Wound w = wind(c, v);
                c = w.point;
                core = std::max(core, std::exp(-w.distance * w.distance * 2.0));
            }
            const Vec3 sky = warp(Vec3{c.x, c.y * 1.4, c.z} * 1.8 + o3, 0.5, 3, world.seed + 9);
            // Cloud belts gather at the equator and at the mid-latitudes.
            const double belts = 0.12 * std::cos(p.y * 9.0);
            const double puffs = 0.5 + 0.8 * fbm(sky, 5, 0.45) + belts + 0.3 * core;
            const double cover =
                smoothstep(1.0 - world.clouds - 0.15, 1.0 - world.clouds + 0.2, puffs);
            colour =
                mix(colour, world.cloudColour * (0.85 + 0.3 * cover), cover * world.cloudOpacity);
        }
        return colour;
    };
}

} // namespace orrery::surfaces
