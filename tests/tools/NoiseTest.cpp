#include "tools/surfaces/Noise.h"
#include "tools/surfaces/Craters.h"
#include "tools/surfaces/Vortex.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orrery::surfaces {
namespace {

Vec3 sample(int i) {
    return {i * 0.173, i * -0.0911, 0.5 + i * 0.0437};
}

TEST(Simplex, BoundedSmoothAndVaried) {
    double low = 0.0;
    double high = 0.0;
    for (int i = 0; i < 20000; ++i) {
        const Vec3 p = sample(i);
        const double n = simplex(p);
        low = std::min(low, n);
        high = std::max(high, n);
        // A tiny step never jumps: the noise is continuous across its lattice cells.
        EXPECT_NEAR(simplex(p + Vec3{1e-4, -1e-4, 1e-4}), n, 5e-3);
    }
    EXPECT_GE(low, -1.0);
    EXPECT_LE(high, 1.0);
    EXPECT_LT(low, -0.6); // it uses most of its range
    EXPECT_GT(high, 0.6);
}

TEST(Fractals, StayInTheirRanges) {
    for (int i = 0; i < 5000; ++i) {
        const Vec3 p = sample(i);
        EXPECT_LE(std::abs(fbm(p, 6)), 1.0);
        const double r = ridged(p, 5);
        EXPECT_GE(r, 0.0);
        EXPECT_LE(r, 1.0);
    }
}

TEST(Cells, NearestComesFirstAndBordersAreZero) {
    for (int i = 0; i < 2000; ++i) {
        const CellDistances d = cells(sample(i) * 3.0, 7);
        EXPECT_LE(d.f1, d.f2);
        EXPECT_LT(d.f1, std::sqrt(3.0));
    }
    // Seeds give different point sets.
    EXPECT_NE(cells({0.3, 0.3, 0.3}, 1).f1, cells({0.3, 0.3, 0.3}, 2).f1);
}

TEST(SeedOffset, FixedPerSeedAndDifferentAcrossSeeds) {
    const Vec3 a = seedOffset(5);
    const Vec3 b = seedOffset(5);
    EXPECT_EQ(a.x, b.x);
    EXPECT_EQ(a.z, b.z);
    EXPECT_NE(seedOffset(6).x, a.x);
}

TEST(Vortex, WindsNearTheCentreAndLeavesFarPointsAlone) {
    const Vortex v = makeVortex(20.0, 45.0, 0.1, 1.5, 3.0);
    const Vec3 far = direction(-60.0, 200.0);
    const Wound away = wind(far, v);
    EXPECT_EQ(away.point.x, far.x);
    EXPECT_GE(away.distance, 3.0);

    const Vec3 near = direction(20.0 + 2.0, 45.0);
    const Wound turned = wind(near, v);
    EXPECT_LT(turned.distance, 1.0);
    EXPECT_GT(length(turned.point - near), 1e-3);                         // moved...
    EXPECT_NEAR(length(turned.point), 1.0, 1e-12);                        // ...along the sphere
    EXPECT_NEAR(dot(turned.point, v.centre), dot(near, v.centre), 1e-12); // round the centre
}

TEST(Craters, MarkTheSurfaceOnlyWhereTheyAre) {
    // Dense small craters: some points are crater floor, and the relief shading is
    // balanced (lit and shadowed walls alike).
    const CraterField field{0.3, 3, 1.0, 9};
    int floors = 0;
    double shadeSum = 0.0;
    double shadeAbs = 0.0;
    constexpr int kPoints = 20000;
    for (int i = 0; i < kPoints; ++i) {
        // Points spread evenly over the sphere (a Fibonacci lattice).
        const double y = 1.0 - 2.0 * (i + 0.5) / kPoints;
        const double r = std::sqrt(1.0 - y * y);
        const double a = i * 2.399963229728653;
        const CraterSample c = sampleCraters(field, {r * std::cos(a), y, r * std::sin(a)});
        floors += c.floor > 0.5;
        shadeSum += c.shade;
        shadeAbs += std::abs(c.shade);
    }
    EXPECT_GT(floors, kPoints / 100);
    EXPECT_GT(shadeAbs, 0.0);
    EXPECT_LT(std::abs(shadeSum), 0.25 * shadeAbs);
    // No crater at all when the density is zero.
    const CraterSample none = sampleCraters({0.3, 3, 0.0, 9}, normalize(Vec3{1, 2, 3}));
    EXPECT_EQ(none.shade, 0.0);
    EXPECT_EQ(none.floor, 0.0);
}

} // namespace
} // namespace orrery::surfaces
