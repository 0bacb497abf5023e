#include "tools/surfaces/Noise.h"

#include <array>
#include <cmath>
#include <utility>

namespace orrery::surfaces {
namespace {

std::uint64_t splitmix(std::uint64_t& state) {
    std::uint64_t z = (state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

// A fixed shuffle of 0..255, doubled so that index arithmetic never wraps, and the
// gradient (0 to 11) that each entry selects.
struct Permutation {
    std::array<std::uint8_t, 512> table{};
    std::array<std::uint8_t, 512> gradient{};
    Permutation() {
        std::array<std::uint8_t, 256> values{};
        for (std::size_t i = 0; i < 256; ++i)
            values[i] = static_cast<std::uint8_t>(i);
        std::uint64_t state = 0x0A11CE5EEDull;
        for (std::size_t i = 255; i > 0; --i)
            std::swap(values[i], values[splitmix(state) % (i + 1)]);
        for (std::size_t i = 0; i < 512; ++i) {
            table[i] = values[i & 255];
            gradient[i] = static_cast<std::uint8_t>(table[i] % 12);
        }
    }
};

std::int64_t fastFloor(double v) {
    const auto truncated = static_cast<std::int64_t>(v);
    return truncated - (v < static_cast<double>(truncated));
}

const Permutation& permutation() {
    static const Permutation p;
    return p;
}

constexpr double kGradients[12][3] = {{1, 1, 0}, {-1, 1, 0}, {1, -1, 0}, {-1, -1, 0},
                                      {1, 0, 1}, {-1, 0, 1}, {1, 0, -1}, {-1, 0, -1},
                                      {0, 1, 1}, {0, -1, 1}, {0, 1, -1}, {0, -1, -1}};

// One corner's share of the noise; its gradient is looked up only when it counts.
[[gnu::always_inline]] inline double corner(const Permutation& perm, int a, int b, int c, double x,
                                            double y, double z) {
    double t = 0.6 - x * x - y * y - z * z;
    if (t <= 0.0)
        return 0.0;
    t *= t;
    const std::size_t index =
        static_cast<std::size_t>(a) +
        perm.table[static_cast<std::size_t>(b) + perm.table[static_cast<std::size_t>(c)]];
    const double* g = kGradients[perm.gradient[index]];
    return t * t * (g[0] * x + g[1] * y + g[2] * z);
}

// Octaves are turned by a fixed rotation so that their lattices never align.
Vec3 nextOctave(const Vec3& p) {
    return {0.00 * p.x + 1.60 * p.y + 1.20 * p.z, -1.60 * p.x + 0.72 * p.y - 0.96 * p.z,
            -1.20 * p.x - 0.96 * p.y + 1.28 * p.z};
}

template <typename Shape> double octaves(const Vec3& p, int count, double gain, Shape shape) {
    double sum = 0.0;
    double weight = 1.0;
    double total = 0.0;
    Vec3 q = p;
    for (int i = 0; i < count; ++i) {
        sum += weight * shape(simplex(q));
        total += weight;
        weight *= gain;
        q = nextOctave(q) + Vec3{3.1, -7.7, 5.3};
    }
    return total > 0.0 ? sum / total : 0.0;
}

} // namespace

double simplex(const Vec3& p) {
    // Skew into the simplex lattice, find the containing tetrahedron, sum its corners.
    constexpr double F3 = 1.0 / 3.0;
    constexpr double G3 = 1.0 / 6.0;
    const double s = (p.x + p.y + p.z) * F3;
    const std::int64_t i = fastFloor(p.x + s);
    const std::int64_t j = fastFloor(p.y + s);
    const std::int64_t k = fastFloor(p.z + s);
    const double t = static_cast<double>(i + j + k) * G3;
    const double x0 = p.x - (static_cast<double>(i) - t);
    const double y0 = p.y - (static_cast<double>(j) - t);
    const double z0 = p.z - (static_cast<double>(k) - t);

    // The second and third corners step along the axes in order of the largest offset.
    const int i1 = x0 >= y0 && x0 >= z0;
    const int j1 = y0 > x0 && y0 >= z0;
    const int k1 = 1 - i1 - j1;
    const int i2 = x0 >= y0 || x0 >= z0;
    const int j2 = y0 > x0 || y0 >= z0;
    const int k2 = z0 > x0 || z0 > y0;

    const double x1 = x0 - i1 + G3, y1 = y0 - j1 + G3, z1 = z0 - k1 + G3;
    const double x2 = x0 - i2 + 2 * G3, y2 = y0 - j2 + 2 * G3, z2 = z0 - k2 + 2 * G3;
    const double x3 = x0 - 1 + 3 * G3, y3 = y0 - 1 + 3 * G3, z3 = z0 - 1 + 3 * G3;

    const Permutation& perm = permutation();
    const int ii = static_cast<int>(i & 255);
    const int jj = static_cast<int>(j & 255);
    const int kk = static_cast<int>(k & 255);
    const double n = corner(perm, ii, jj, kk, x0, y0, z0) +
                     corner(perm, ii + i1, jj + j1, kk + k1, x1, y1, z1) +
                     corner(perm, ii + i2, jj + j2, kk + k2, x2, y2, z2) +
                     corner(perm, ii + 1, jj + 1, kk + 1, x3, y3, z3);
    return 32.0 * n;
}

Vec3 seedOffset(std::uint32_t seed) {
    std::uint64_t state = 0x5EEDull * (seed + 1);
    const auto coordinate = [&state] {
        return static_cast<double>(splitmix(state) % 20000) / 100.0 - 100.0;
    };
    const double x = coordinate();
    const double y = coordinate();
    const double z = coordinate();
    return {x, y, z};
}

double fbm(const Vec3& p, int count, double gain) {
    return octaves(p, count, gain, [](double n) { return n; });
}

double ridged(const Vec3& p, int count, double gain) {
    return octaves(p, count, gain, [](double n) {
        const double crest = 1.0 - std::abs(n);
        return crest * crest;
    });
}

Vec3 warp(const Vec3& p, double amount, int count, std::uint32_t seed) {
    const Vec3 a = seedOffset(seed);
    const Vec3 b = seedOffset(seed + 101);
    const Vec3 c = seedOffset(seed + 202);
    return p + Vec3{fbm(p + a, count), fbm(p + b, count), fbm(p + c, count)} * amount;
}

std::uint32_t hash(std::int64_t x, std::int64_t y, std::int64_t z, std::uint32_t seed) {
    std::uint64_t h = static_cast<std::uint64_t>(x) * 0x8DA6B343ull ^
                      static_cast<std::uint64_t>(y) * 0xD8163841ull ^
                      static_cast<std::uint64_t>(z) * 0xCB1AB31Full ^
                      static_cast<std::uint64_t>(seed) * 0x9E3779B1ull;
    return static_cast<std::uint32_t>(splitmix(h) >> 32);
}

CellDistances cells(const Vec3& p, std::uint32_t seed) {
    const auto cx = static_cast<std::int64_t>(std::floor(p.x));
    const auto cy = static_cast<std::int64_t>(std::floor(p.y));
    const auto cz = static_cast<std::int64_t>(std::floor(p.z));
    CellDistances result{1e9, 1e9, 0};
    for (std::int64_t dz = -1; dz <= 1; ++dz)
        for (std::int64_t dy = -1; dy <= 1; ++dy)
            for (std::int64_t dx = -1; dx <= 1; ++dx) {
                const std::uint32_t h = hash(cx + dx, cy + dy, cz + dz, seed);
                const Vec3 point{static_cast<double>(cx + dx) + unitFromHash(h),
                                 static_cast<double>(cy + dy) + unitFromHash(h * 747796405u + 1),
                                 static_cast<double>(cz + dz) + unitFromHash(h * 2891336453u + 7)};
                const double d = length(point - p);
                if (d < result.f1) {
                    result.f2 = result.f1;
                    result.f1 = d;
                    result.id = h;
                } else if (d < result.f2) {
                    result.f2 = d;
                }
            }
    return result;
}

} // namespace orrery::surfaces
