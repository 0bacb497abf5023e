#pragma once

#include "tools/surfaces/Vec3.h"

#include <cstdint>

namespace orrery::surfaces {

// A field of impact craters of many sizes scattered over the sphere, smaller ones far
// more numerous, as on real airless bodies.
struct CraterField {
    double largest = 0.5; // cell size of the largest layer; radii are up to a quarter of it
    int layers = 4;       // each layer halves the size and quadruples the count
    double density = 0.7; // share of cells that hold a crater
    std::uint32_t seed = 1;
};

// What the craters do at one point: relief shading for a light falling from the
// north-east (positive where a slope faces it), how much of the point is crater floor, and
// the bright blanket thrown out by fresh impacts.
struct CraterSample {
    double shade = 0.0;
    double floor = 0.0;
    double ejecta = 0.0;
};

CraterSample sampleCraters(const CraterField& field, const Vec3& p);

} // namespace orrery::surfaces
