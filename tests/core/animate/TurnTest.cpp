#include "core/animate/Turntable.h"
#include "core/model/Color.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orrery {
namespace {

TEST(Turn, TurnsPerLoopFollowSizeOnlyWhenAsked) {
    struct Row {
        SpinMode spin;
        double radius;
        double largest;
        int frames;
        int turns;
    };
    const Row rows[] = {
        {SpinMode::same, 5, 50, 48, 1},    // all the same: one turn, whatever the size
        {SpinMode::bySize, 50, 50, 48, 1}, // the largest turns once
        {SpinMode::bySize, 25, 50, 48, 2}, // half the size, twice as fast
        {SpinMode::bySize, 40, 50, 48, 1}, // close to the largest rounds to one turn
        {SpinMode::bySize, 1, 50, 48, 6},  // at most one turn every eight frames
        {SpinMode::bySize, 1, 50, 8, 1},   // a short loop leaves no room for more
        {SpinMode::bySize, 0, 50, 48, 1},  // a planet of no size is no smaller than any
    };
    for (const Row& row : rows)
        EXPECT_EQ(turnsPerLoop(row.spin, row.radius, row.largest, row.frames), row.turns)
            << row.radius << " of " << row.largest << " in " << row.frames;
}

TEST(Turn, LoopClosesAndStepsEvenly) {
    for (const int turns : {1, 2, 6}) {
        EXPECT_EQ(surfaceTurn(turns, 0, 48), 0.0);
        // The frame after the last is the first again, so the last step is like any other.
        EXPECT_NEAR(surfaceTurn(turns, 47, 48) + turns / 48.0, 1.0, 1e-12) << turns;
        for (int frame = 0; frame < 48; ++frame) {
            const double turn = surfaceTurn(turns, frame, 48);
            EXPECT_GE(turn, 0.0);
            EXPECT_LT(turn, 1.0);
        }
    }
}

TEST(Turn, LightCirclesWestToEastAroundTheCentre) {
    const Vec3 centre{10, 0, 0};
    const Vec3 light{10, 5, 100}; // in front of the centre, above it
    EXPECT_EQ(orbitingLight(light, centre, 0, 8), light);
    const Vec3 quarter = orbitingLight(light, centre, 2, 8);
    // A quarter of the loop later it stands to the east (+x), at the same height and distance.
    EXPECT_NEAR(quarter.x, 110, 1e-9);
    EXPECT_NEAR(quarter.y, 5, 1e-9);
    EXPECT_NEAR(quarter.z, 0, 1e-9);
    const Vec3 whole = orbitingLight(light, centre, 8, 8);
    EXPECT_NEAR(length(whole - light), 0.0, 1e-9);
}

TEST(Turn, TurntableTurnsThePlanetsAndPutsTheViewBack) {
    SceneView view;
    view.createPlanet2("1", kWhite, 0, 3, "0", "0", "0", "50");
    view.createPlanet2("2", kWhite, 0, 3, "100", "0", "0", "25");
    view.updateLight("0", "0", "300");
    AnimationOptions options;
    options.frames = 16;
    options.spin = SpinMode::bySize;
    options.lightOrbit = true;
    Turntable turntable(view, options);
    turntable.showFrame(1);
    std::vector<double> turns;
    for (const auto& node : view.scene().rootNode().children())
        if (node->sphere())
            turns.push_back(node->sphere()->turn);
    EXPECT_EQ(turns, (std::vector<double>{1.0 / 16, 2.0 / 16})); // the smaller one twice as fast
    // The light circles the middle of the planets' box, (37.5, 0, 0).
    EXPECT_NE(view.getLightPosition(), (Vec3{0, 0, 300}));
    EXPECT_NEAR(length(view.getLightPosition() - Vec3{37.5, 0, 0}), length(Vec3{-37.5, 0, 300}),
                1e-9);
    turntable.restore();
    EXPECT_EQ(view.getLightPosition(), (Vec3{0, 0, 300}));
    for (const auto& node : view.scene().rootNode().children()) {
        if (node->sphere()) {
            EXPECT_EQ(node->sphere()->turn, 0.0);
        }
    }
}

} // namespace
} // namespace orrery
