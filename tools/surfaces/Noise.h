#pragma once

#include "tools/surfaces/Vec3.h"

#include <cstdint>

// Coherent noise sampled in three dimensions, so that a texture wrapped onto a sphere has
// no seam and no pinching at the poles: every pixel asks for the noise at its own point
// on the unit sphere.
namespace orrery::surfaces {

// Simplex noise, about -1 to 1, smooth, with no visible lattice.
double simplex(const Vec3& p);

// A fixed pseudo-random offset per seed, to take independent-looking samples of one
// noise field.
Vec3 seedOffset(std::uint32_t seed);

// Fractal sums of octaves, each octave at double the frequency and `gain` times the
// weight of the one before (rotated so that octaves do not line up). Normalised to about
// -1 to 1 (fbm) or 0 to 1 (ridged: sharp crests where the noise crosses zero).
double fbm(const Vec3& p, int octaves, double gain = 0.5);
double ridged(const Vec3& p, int octaves, double gain = 0.5);

// p displaced by a smooth random field: the domain warp that turns noise into swirls.
Vec3 warp(const Vec3& p, double amount, int octaves, std::uint32_t seed);

// Distances from p to the nearest and second-nearest of the random points scattered one
// per unit cell (cellular noise): F2 - F1 is 0 on the borders between cells.
struct CellDistances {
    double f1 = 0.0;
    double f2 = 0.0;
    std::uint32_t id = 0; // of the nearest point's cell
};
CellDistances cells(const Vec3& p, std::uint32_t seed);

// Integer hashing for features placed per cell.
std::uint32_t hash(std::int64_t x, std::int64_t y, std::int64_t z, std::uint32_t seed);
inline double unitFromHash(std::uint32_t h) {
    return (h >> 8) * (1.0 / 16777216.0);
}

} // namespace orrery::surfaces
