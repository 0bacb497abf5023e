#include "tools/surfaces/Vortex.h"

#include "tools/surfaces/Noise.h"

#include <cmath>

namespace orrery::surfaces {

Vortex makeVortex(double latitude, double longitude, double radius, double aspect, double spin) {
    const Vec3 centre = direction(latitude, longitude);
    const Vec3 east = normalize(cross(Vec3{0.0, 1.0, 0.0}, centre));
    return {centre, east, cross(centre, east), radius, aspect, spin};
}

std::vector<Vortex> scatterVortices(int count, double lowest, double highest, double smallest,
                                    double largest, double spin, std::uint32_t seed) {
    std::vector<Vortex> vortices;
    for (int i = 0; i < count; ++i) {
        const std::uint32_t h = hash(i, 17, 3, seed);
        const double side = (h & 1) ? 1.0 : -1.0;
        const double latitude =
            side * (lowest + (highest - lowest) * unitFromHash(h * 747796405u + 1));
        const double longitude = 360.0 * unitFromHash(h * 2891336453u + 3);
        const double radius = smallest + (largest - smallest) * unitFromHash(h * 1664525u + 5);
        const double aspect = 1.2 + 0.6 * unitFromHash(h * 22695477u + 7);
        vortices.push_back(makeVortex(latitude, longitude, radius, aspect, side * spin));
    }
    return vortices;
}

Wound wind(const Vec3& p, const Vortex& vortex) {
    const Vec3 d = p - vortex.centre;
    const double e = dot(d, vortex.east) / (vortex.radius * vortex.aspect);
    const double n = dot(d, vortex.north) / vortex.radius;
    const double r2 = e * e + n * n;
    if (r2 >= 9.0 || dot(p, vortex.centre) < 0.0)
        return {p, 3.0};
    return {rotate(p, vortex.centre, vortex.spin * std::exp(-r2)), std::sqrt(r2)};
}

} // namespace orrery::surfaces
