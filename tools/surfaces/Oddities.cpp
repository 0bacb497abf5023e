#include "tools/surfaces/Oddities.h"

#include "tools/surfaces/Craters.h"
#include "tools/surfaces/Noise.h"

#include <algorithm>
#include <cmath>

namespace orrery::surfaces {

Shader volcanicMoon() {
    const Ramp sulphur{{0.0, hex(0x5a3e10)},
                       {0.35, hex(0x866818)},
                       {0.6, hex(0x9c8430)},
                       {0.8, hex(0x865a20)},
                       {1.0, hex(0x6a3614)}};
    const Vec3 o1 = seedOffset(181);
    const Vec3 o2 = seedOffset(182);
    return [sulphur, o1, o2](const Vec3& p) {
        const Vec3 q = warp(p * 3.0 + o1, 0.5, 3, 183);
        Rgb colour = sulphur.at(0.5 + 0.7 * fbm(q, 6));
        const double frost = smoothstep(0.3, 0.5, fbm(p * 2.0 + o2, 5));
        colour = mix(colour, hex(0xa09878), frost * 0.6);
        // Calderas: dark vents, some with a red ring of fallen plume material.
        const CellDistances vent = cells(warp(p * 6.0 + o2, 0.15, 2, 184), 185);
        if (unitFromHash(vent.id) < 0.45) {
            const double size = 0.6 + 0.8 * unitFromHash(vent.id * 747796405u + 1);
            const double d = vent.f1 / size;
            const double ring = std::exp(-std::pow((d - 0.38) / 0.07, 2.0));
            if (unitFromHash(vent.id * 2891336453u + 3) < 0.5)
                colour = mix(colour, hex(0x8a2a10), ring * 0.65);
            colour = mix(colour, hex(0x1c120a), 1.0 - smoothstep(0.05, 0.12, d));
            colour = mix(colour, hex(0x4a2a10), (1.0 - smoothstep(0.1, 0.2, d)) * 0.5);
        }
        return colour * (1.0 + 0.05 * simplex(p * 150.0 + o1));
    };
}

Shader crystalWorld() {
    const Ramp facets{{0.0, hex(0x1d1a4a)},
                      {0.3, hex(0x2c4a7a)},
                      {0.55, hex(0x1f6b75)},
                      {0.8, hex(0x5b2f78)},
                      {1.0, hex(0x2a1f5c)}};
    const Vec3 o1 = seedOffset(191);
    return [facets, o1](const Vec3& p) {
        const CellDistances large = cells(p * 5.0 + o1, 192);
        const CellDistances small = cells(p * 17.0 + o1, 193);
        const double tone = unitFromHash(large.id);
        // Each facet leans its own way: brighter towards one side.
        const double lean = large.f1 / (large.f1 + large.f2);
        Rgb colour = facets.at(tone) * (0.7 + 0.7 * lean);
        colour = colour * (0.85 + 0.3 * unitFromHash(small.id));
        const double edge = 1.0 - smoothstep(0.0, 0.05, large.f2 - large.f1);
        colour = mix(colour, hex(0x9fd8e0), edge * 0.5);
        const double glint = std::pow(std::max(0.0, simplex(p * 60.0 + o1)), 12.0);
        return colour + hex(0xd0f0ff) * (glint * 0.8);
    };
}

Shader eyeball() {
    // The star stands over the middle of the map.
    const Vec3 sun = direction(0.0, 180.0);
    const Vec3 o1 = seedOffset(201);
    const Vec3 o2 = seedOffset(202);
    return [sun, o1, o2](const Vec3& p) {
        const double noise = fbm(warp(p * 2.5 + o1, 0.5, 3, 203), 6);
        const double facing = dot(p, sun) + 0.15 * noise;
        const double rock = ridged(p * 7.0 + o2, 5);
        const Rgb scorched = mix(hex(0x4a2414), hex(0x8a5030), 0.3 + 0.5 * rock + 0.3 * noise);
        const Rgb sea = mix(hex(0x0c2a4a), hex(0x1a5a6a), 0.5 + noise);
        const Rgb green = mix(hex(0x1f3a14), hex(0x4a5a22), 0.5 + fbm(p * 8.0 + o2, 4));
        const double crack =
            smoothstep(0.9, 0.97, 1.0 - std::abs(simplex(warp(p * 5.0 + o2, 0.3, 2, 204))));
        const Rgb ice = mix(hex(0x2e3a4a), hex(0x6a7888), 0.5 + 0.6 * fbm(p * 4.0 + o2, 5)) *
                        (1.0 - 0.35 * crack);
        const double land = smoothstep(0.05, 0.12, fbm(p * 3.0 + o2, 6));
        const Rgb ring = mix(sea, green, land);
        const Rgb colour = mix(scorched, ring, smoothstep(0.6, 0.4, facing));
        return mix(colour, ice, smoothstep(0.0, -0.25, facing));
    };
}

Shader frostHeart() {
    const Vec3 heart = direction(20.0, 180.0);
    const Vec3 o1 = seedOffset(211);
    const Vec3 o2 = seedOffset(212);
    const CraterField craters{0.5, 3, 0.5, 213};
    return [heart, o1, o2, craters](const Vec3& p) {
        const double terrain = fbm(warp(p * 3.0 + o1, 0.4, 3, 214), 6);
        Rgb colour = mix(hex(0x6a5040), hex(0xa08a70), 0.5 + 0.7 * terrain);
        // A dark reddish belt along the equator...
        const double belt = smoothstep(0.35, 0.15, std::abs(p.y + 0.1 * fbm(p * 4.0 + o2, 4)));
        colour = mix(colour, hex(0x3a1c14) * (0.8 + 0.5 * terrain), belt * 0.85);
        colour = colour * (1.0 + 0.1 * sampleCraters(craters, p).shade);
        // ...interrupted by a smooth frozen plain with a faint cell pattern.
        // Two lobes meeting in a point, like a heart.
        const Vec3 left = normalize(heart + Vec3{0.0, 0.14, 0.0} + direction(0.0, 90.0) * 0.2);
        const Vec3 right = normalize(heart + Vec3{0.0, 0.12, 0.0} + direction(0.0, 90.0) * -0.18);
        const Vec3 tip = normalize(heart + Vec3{0.0, -0.3, 0.0});
        const double edge = 0.05 * fbm(p * 7.0 + o2, 4);
        const double lobes = std::max({dot(p, left) - 0.955, dot(p, right) - 0.96,
                                       std::min(dot(p, tip) - 0.93, dot(p, heart) - 0.93)});
        const double plain = smoothstep(-0.01, 0.01, lobes + edge * 0.3);
        const CellDistances convection = cells(p * 30.0 + o1, 215);
        const Rgb ice =
            hex(0xb8a890) * (0.92 + 0.08 * smoothstep(0.0, 0.1, convection.f2 - convection.f1));
        return mix(colour, ice, plain);
    };
}

Shader obsidian() {
    const Vec3 o1 = seedOffset(221);
    const Vec3 o2 = seedOffset(222);
    return [o1, o2](const Vec3& p) {
        const double sheen = 0.5 + 0.5 * fbm(p * 3.0 + o1, 5);
        Rgb colour = mix(hex(0x100c16), hex(0x2e2240), sheen);
        const Vec3 q = warp(p * 3.0 + o2, 0.5, 3, 223);
        const double vein = std::pow(ridged(q, 5, 0.5), 3.5);
        colour = colour + mix(hex(0x3a1060), hex(0xb048e0), vein) * (vein * 1.3);
        return colour * (1.0 + 0.08 * simplex(p * 120.0 + o1));
    };
}

} // namespace orrery::surfaces
