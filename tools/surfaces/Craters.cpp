#include "tools/surfaces/Craters.h"

#include "tools/surfaces/Noise.h"
#include "tools/surfaces/Palette.h"

#include <algorithm>
#include <cmath>

namespace orrery::surfaces {
namespace {

// Crater centres lie within this share of a cell from the sphere and reach at most
// kReach times their radius; with radii up to kLargestRadius of a cell, every crater that
// touches a point has its centre in one of the 2 x 2 x 2 cells around it.
constexpr double kShell = 0.1;
constexpr double kReach = 1.6;
constexpr double kLargestRadius = 0.25;

// Height across a crater, x = distance / radius: a bowl with a flat floor, a raised rim
// and a central peak in the larger ones, all softened by age.
double profile(double x, double fresh, double peak) {
    const double bowl = x < 1.0 ? std::max(x * x - 1.0, -0.75) : 0.0;
    const double rimWidth = 0.18 + 0.25 * (1.0 - fresh);
    const double rim = 0.45 * std::exp(-((x - 1.0) * (x - 1.0)) / (rimWidth * rimWidth));
    const double centre = peak * std::exp(-x * x / 0.02);
    return (0.35 + 0.65 * fresh) * (bowl + rim + centre);
}

// The light comes from the north-east of every point, across its tangent plane.
Vec3 lightTangent(const Vec3& p) {
    Vec3 east = cross(Vec3{0.0, 1.0, 0.0}, p);
    if (dot(east, east) < 1e-12)
        east = {1.0, 0.0, 0.0};
    east = normalize(east);
    const Vec3 north = cross(p, east);
    return normalize(east * 0.6 + north * 0.8);
}

} // namespace

CraterSample sampleCraters(const CraterField& field, const Vec3& p) {
    CraterSample sample;
    const Vec3 light = lightTangent(p);
    double cell = field.largest;
    for (int layer = 0; layer < field.layers; ++layer, cell *= 0.6) {
        const std::uint32_t seed = field.seed * 977u + static_cast<std::uint32_t>(layer);
        const auto first = [cell](double v) {
            return static_cast<std::int64_t>(std::floor(v / cell - 0.5));
        };
        const std::int64_t x0 = first(p.x), y0 = first(p.y), z0 = first(p.z);
        for (std::int64_t i = 0; i < 8; ++i) {
            const std::int64_t cx = x0 + (i & 1), cy = y0 + ((i >> 1) & 1), cz = z0 + (i >> 2);
            const std::uint32_t h = hash(cx, cy, cz, seed);
            if (unitFromHash(h) > field.density)
                continue;
            const Vec3 centre{(static_cast<double>(cx) + unitFromHash(h * 747796405u + 1)) * cell,
                              (static_cast<double>(cy) + unitFromHash(h * 2891336453u + 3)) * cell,
                              (static_cast<double>(cz) + unitFromHash(h * 1664525u + 5)) * cell};
            if (std::abs(length(centre) - 1.0) > kShell * cell)
                continue;
            const Vec3 onSphere = normalize(centre);
            const double shape = unitFromHash(h * 22695477u + 9);
            const double radius = cell * kLargestRadius * (0.3 + 0.7 * shape);
            const Vec3 offset = p - onSphere;
            const double distance = length(offset);
            if (distance >= radius * kReach)
                continue;
            const double fresh = unitFromHash(h * 1103515245u + 11);
            const double peak = layer == 0 ? 0.25 : 0.0;
            const double x = distance / radius;
            constexpr double e = 0.01;
            const double slope =
                (profile(x + e, fresh, peak) - profile(x - e, fresh, peak)) / (2 * e);
            // Outward direction across the surface, for the relief shading.
            const Vec3 across = offset - p * dot(offset, p);
            const double alongLight = distance > 0.0 ? dot(normalize(across), light) : 0.0;
            sample.shade -= slope * alongLight * std::min(1.0, 0.5 + fresh);
            if (x < 1.0)
                sample.floor = std::max(sample.floor, 1.0 - smoothstep(0.55, 0.9, x));
            sample.ejecta += fresh * fresh * std::max(0.0, 1.0 - std::abs(x - 1.15) / 0.45);
        }
    }
    return sample;
}

} // namespace orrery::surfaces
