#include "render/PlanetCulling.h"

#include "core/scene/CameraProjection.h"

#include <gtest/gtest.h>

#include <vector>

namespace orrery::render {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;

// A planet whose silhouette is a circle of `pixels` radius, near enough, centred on the
// pixel (px, py), `depth` ahead of the eye.
struct OnScreen {
    double px = 0.0;
    double py = 0.0;
    double pixels = 0.0;
    double depth = 0.0;
    float alpha = 1.0f;
};

struct Pass {
    std::vector<PassRole> roles;
    std::optional<PixelRect> soft;
};

Pass planPass(const std::vector<OnScreen>& planets,
              const PixelRect& area = {0, 0, kWidth, kHeight}) {
    const CameraProjection camera({0, 0, 0}, 45.0, kWidth, kHeight, DepthRange{100.0, 5000.0});
    const std::array<double, 16> matrix = camera.matrix();
    const DepthFrame frame{
        {camera.ndcToRayX(), camera.ndcToRayY(), kWidth, kHeight, 255.0}, matrix[10], matrix[14]};
    std::vector<PlanetInstance> instances;
    for (const OnScreen& p : planets) {
        const double perPixel = 2.0 * frame.screen.ndcToRayY / kHeight * p.depth;
        PlanetInstance planet{};
        planet.center[0] =
            static_cast<float>((p.px / kWidth * 2 - 1) * frame.screen.ndcToRayX * p.depth);
        planet.center[1] =
            static_cast<float>((p.py / kHeight * 2 - 1) * frame.screen.ndcToRayY * p.depth);
        planet.center[2] = static_cast<float>(-p.depth);
        planet.radius = static_cast<float>(p.pixels * perPixel);
        planet.color[3] = p.alpha;
        planet.rampRow = planet.surfaceLayer = -1.0f;
        instances.push_back(planet);
    }
    std::vector<PassCandidate> candidates;
    for (const PlanetInstance& planet : instances) {
        const PixelBox box = *silhouetteBox(planet, frame.screen);
        candidates.push_back({&planet,
                              {box.left - kEdgeMargin, box.bottom - kEdgeMargin,
                               box.right + kEdgeMargin, box.top + kEdgeMargin},
                              planet.color[3] == 1.0f});
    }
    PassPlan plan;
    assignPassRoles(candidates, frame, area, plan);
    Pass pass{{}, plan.soft};
    for (const PassPlanet& planet : plan.planets)
        pass.roles.push_back(planet.role);
    return pass;
}

using enum PassRole;

// The roles of planets given farthest first, as they are drawn, over the middle of the
// picture, behind which two far planets fill it: enough painting over that culling pays.
std::vector<PassRole> rolesBeforeFillers(std::vector<OnScreen> planets) {
    const OnScreen filler{400, 300, 300, 4800};
    planets.insert(planets.begin(), {filler, filler});
    std::vector<PassRole> roles = planPass(planets, {200, 100, 400, 400}).roles;
    return {roles.begin() + 2, roles.end()};
}

TEST(PlanetCulling, LeavesOutOnlyWhatCannotShow) {
    const OnScreen large{400, 300, 150, 1000};
    // Wholly behind an opaque planet's inner disc: left out.
    EXPECT_EQ(rolesBeforeFillers({{400, 300, 20, 2000}, large}), (std::vector{hidden, shared}));
    // Through a translucent planet, or past the edge of an opaque one, it shows.
    OnScreen translucent = large;
    translucent.alpha = 0.5f;
    EXPECT_EQ(rolesBeforeFillers({{400, 300, 20, 2000}, translucent}),
              (std::vector{shared, shared}));
    EXPECT_EQ(rolesBeforeFillers({{545, 300, 20, 2000}, large}), (std::vector{shared, shared}));
    // Nearer than the large planet, though drawn before it, it shows too.
    EXPECT_EQ(rolesBeforeFillers({{400, 300, 20, 700}, large}), (std::vector{shared, shared}));
}

// Planets that share no pixel are each drawn alone; one behind another is not.
TEST(PlanetCulling, PlanetsApartAreAlone) {
    EXPECT_EQ(planPass({{200, 300, 30, 1000}, {600, 300, 30, 1000}}).roles,
              (std::vector{alone, alone}));
    EXPECT_EQ(planPass({{200, 300, 30, 1000}, {220, 300, 30, 900}}).roles,
              (std::vector{shared, shared}));
}

// The finishing pass need divide by alpha only where a soft edge lies on the picture.
TEST(PlanetCulling, SoftPixelsAreWhereEdgesLie) {
    const auto soft = planPass({{200, 300, 30, 1000}}).soft;
    ASSERT_TRUE(soft);
    EXPECT_NEAR(soft->x, 170, 3);
    EXPECT_NEAR(soft->x + soft->width, 230, 3);
    // A planet whose edge lies off the picture leaves none.
    EXPECT_FALSE(planPass({{400, 300, 700, 3000}}).soft);
}

} // namespace
} // namespace orrery::render
