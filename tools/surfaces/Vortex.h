#pragma once

#include "tools/surfaces/Vec3.h"

#include <cstdint>
#include <vector>

namespace orrery::surfaces {

// A spinning oval in a flowing atmosphere. Winding a point around it before sampling a
// pattern curls the pattern into the storm.
struct Vortex {
    Vec3 centre;
    Vec3 east;
    Vec3 north;
    double radius = 0.1; // north-south half size in radians
    double aspect = 1.5; // east-west size relative to north-south
    double spin = 3.0;   // winding at the centre in radians; the sign is the sense
};

Vortex makeVortex(double latitude, double longitude, double radius, double aspect, double spin);

// Vortices scattered over the latitudes from `lowest` to `highest` degrees (both
// hemispheres), spinning the way the hemisphere's weather would; the same for a seed.
std::vector<Vortex> scatterVortices(int count, double lowest, double highest, double smallest,
                                    double largest, double spin, std::uint32_t seed);

// The point wound around the vortex, and its distance from the centre in units of the
// oval's size (1 on the oval's edge).
struct Wound {
    Vec3 point;
    double distance = 0.0;
};
Wound wind(const Vec3& p, const Vortex& vortex);

} // namespace orrery::surfaces
