#include "tools/surfaces/Landscapes.h"

#include "tools/surfaces/Noise.h"

#include <cmath>
#include <numbers>

namespace orrery::surfaces {

namespace {

// The light on a train of dunes: a long bright windward slope, then a short dark slip
// face beyond the crest.
double duneLight(double phase) {
    const double a = 2.0 * std::numbers::pi * phase;
    return 0.45 * std::sin(a) + 0.2 * std::sin(2.0 * a);
}

} // namespace

Shader duneSea() {
    const Ramp sand{
        {0.0, hex(0x5a3419)}, {0.45, hex(0x8c5a2b)}, {0.75, hex(0xa4723a)}, {1.0, hex(0xb88c50)}};
    const Vec3 o1 = seedOffset(151);
    const Vec3 o2 = seedOffset(152);
    const Vec3 o3 = seedOffset(153);
    // Three wind directions; each dune field follows the one that suits its place, and a
    // direction fades out where it would run straight at the viewer.
    const Vec3 winds[3] = {{1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}, normalize(Vec3{1.0, 0.0, -1.0})};
    return [sand, o1, o2, o3, winds](const Vec3& p) {
        const Vec3 meander = warp(p * 4.0 + o1, 0.35, 3, 154);
        double light = 0.0;
        double weights = 0.0;
        for (int i = 0; i < 3; ++i) {
            const double along = dot(p, winds[i]);
            const double region = 0.5 + 0.5 * fbm(p * 1.5 + seedOffset(155 + i), 3);
            const double w = std::pow((1.0 - along * along) * (0.5 + region), 12.0);
            light += w * duneLight(along * 22.0 + 2.0 * fbm(meander, 3) + 0.3 * i);
            weights += w;
        }
        light /= weights;
        const double region = fbm(p * 2.0 + o2, 5);
        const double field = smoothstep(-0.35, 0.1, fbm(p * 2.5 + o3, 4));
        Rgb colour = sand.at(0.55 + 0.35 * region);
        colour = colour * (1.0 + 0.55 * light * field);

        return colour * (1.0 + 0.05 * simplex(p * 160.0 + o2));
    };
}

Shader canyonlands() {
    const Ramp strata{{0.0, hex(0x6b2c17)}, {0.2, hex(0x9a4a22)},  {0.35, hex(0x7d3a1d)},
                      {0.5, hex(0xa8643a)}, {0.65, hex(0x8a4424)}, {0.8, hex(0x9a5a34)},
                      {1.0, hex(0x6e3019)}};
    const Vec3 o1 = seedOffset(161);
    const Vec3 o2 = seedOffset(162);
    const Vec3 o3 = seedOffset(163);
    return [strata, o1, o2, o3](const Vec3& p) {
        const Vec3 q = warp(p * 1.8 + o1, 0.4, 3, 164);
        const double plateau = 0.5 + 0.5 * fbm(q, 5);
        // Canyons follow the crests of ridged noise, branching as its octaves add up.
        const double network = ridged(q * 1.1 + o2, 5, 0.5);
        const double canyon = smoothstep(0.45, 0.75, network);
        const double height = plateau - 0.3 * canyon;
        // Terraces: the rock is layered, each layer its own colour.
        const double terrace = height * 4.0 + 0.15 * fbm(p * 12.0 + o3, 3);
        Rgb colour = strata.at(terrace - std::floor(terrace));
        colour = colour * (1.0 - 0.6 * canyon);
        colour = mix(colour, hex(0x1e120c), smoothstep(0.82, 0.95, network));
        return colour * (0.85 + 0.3 * plateau) * (1.0 + 0.06 * simplex(p * 140.0 + o3));
    };
}

Shader saltFlats() {
    const Vec3 o1 = seedOffset(171);
    const Vec3 o2 = seedOffset(172);
    const Vec3 o3 = seedOffset(173);
    return [o1, o2, o3](const Vec3& p) {
        const double crust = fbm(p * 3.0 + o1, 6);
        Rgb colour = mix(hex(0x7b7266), hex(0xa59d8f), 0.5 + 0.8 * crust);
        const CellDistances polygon = cells(warp(p * 22.0 + o2, 0.2, 2, 174), 175);
        const double crack = 1.0 - smoothstep(0.0, 0.07, polygon.f2 - polygon.f1);
        colour = colour * (0.92 + 0.12 * unitFromHash(polygon.id)) * (1.0 - 0.45 * crack);
        const double brine = smoothstep(0.25, 0.32, fbm(p * 1.8 + o3, 5));
        colour = mix(colour, hex(0x2f5a5c) * (0.8 + 0.4 * crust), brine);
        const double mud = smoothstep(0.2, 0.35, fbm(p * 5.0 + o3, 4) - 0.3 * brine);
        return mix(colour, hex(0x4a3f35), mud * 0.7);
    };
}

} // namespace orrery::surfaces
