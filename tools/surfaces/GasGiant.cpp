#include "tools/surfaces/GasGiant.h"

#include "tools/surfaces/Noise.h"
#include "tools/surfaces/Vortex.h"

#include <cmath>

namespace orrery::surfaces {
namespace {

struct PlacedStorm {
    Vortex vortex;
    Rgb tint;
    double amount = 0.0;
};

std::vector<PlacedStorm> placeStorms(const GasGiant& giant) {
    std::vector<PlacedStorm> storms;
    for (const Storm& s : giant.storms)
        storms.push_back({makeVortex(s.latitude, s.longitude, s.radius, s.aspect, s.spin), s.tint,
                          s.tintAmount});
    for (const Vortex& v :
         scatterVortices(giant.scatteredStorms, 12.0, 62.0, 0.02, 0.045, 2.5, giant.seed))
        storms.push_back({v, giant.scatteredTint, 0.6});
    return storms;
}

} // namespace

Shader gasGiant(GasGiant giant) {
    std::vector<PlacedStorm> storms = placeStorms(giant);
    const Vec3 o1 = seedOffset(giant.seed);
    const Vec3 o2 = seedOffset(giant.seed + 1);
    const Vec3 o3 = seedOffset(giant.seed + 2);
    const Vec3 o4 = seedOffset(giant.seed + 3);

    return [giant = std::move(giant), storms = std::move(storms), o1, o2, o3, o4](const Vec3& p) {
        Vec3 q = p;
        double body = 0.0;
        double collar = 0.0;
        Rgb tint{};
        for (const PlacedStorm& s : storms) {
            const Wound w = wind(q, s.vortex);
            if (w.distance >= 3.0)
                continue;
            q = w.point;
            const double inside = (1.0 - smoothstep(0.75, 1.0, w.distance)) * s.amount;
            if (inside > body) {
                body = inside;
                tint = s.tint;
            }
            collar =
                std::max(collar, std::exp(-std::pow((w.distance - 1.1) / 0.15, 2.0)) * s.amount);
        }
        // Jet streams: neighbouring latitudes drift at different speeds, which shears
        // the turbulence into chevrons and festoons.
        q = rotate(q, {0.0, 1.0, 0.0}, 0.5 * std::sin(q.y * giant.bands * 2.3));

        const Vec3 stretched{q.x * 2.0, q.y * 5.0, q.z * 2.0};
        const Vec3 curled = warp(stretched + o1, giant.swirl, 3, giant.seed + 7);
        // Near the poles the bands break up into mottled turbulence.
        const double polarChaos = 1.0 + 2.5 * std::pow(std::abs(q.y), 4.0);
        const double latitude = q.y + giant.turbulence * polarChaos * fbm(curled, 5);
        const double pattern = fbm(Vec3{0.0, latitude * giant.bands, 0.0} + o2, 2, 0.4);
        const double shade = 0.12 * fbm(Vec3{0.0, latitude * giant.bands * 3.0, 0.0} + o4, 2);
        const double band = 0.5 + 0.5 * std::tanh(giant.sharpness * pattern * 2.5) + shade;
        Rgb colour = giant.palette.at(band);

        const Vec3 fine{q.x * 5.0, q.y * 24.0, q.z * 5.0};
        colour = colour * (1.0 + giant.streaks * fbm(warp(fine + o3, 0.4, 2, giant.seed + 9), 4));
        colour = mix(colour, giant.palette.at(0.95) * 1.08, collar * 0.5);
        colour = mix(colour, tint * (0.9 + 0.25 * fbm(q * 30.0 + o4, 3)), body);
        const double polar = std::abs(p.y);
        return colour * (1.0 - giant.polarDarkening * polar * polar * polar);
    };
}

} // namespace orrery::surfaces
