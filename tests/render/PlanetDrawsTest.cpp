#include "render/PlanetDraws.h"

#include "core/scene/SceneView.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <limits>
#include <numbers>

namespace orrery::render {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;

ScreenFrame frame(double maxSpriteSide = 255.0) {
    SceneView view;
    const CameraProjection camera = view.projection(kWidth, kHeight);
    return {camera.ndcToRayX(), camera.ndcToRayY(), kWidth, kHeight, maxSpriteSide};
}

PlanetInstance planet(double x, double y, double z, double radius, bool textured = false) {
    PlanetInstance p{};
    p.center[0] = static_cast<float>(x);
    p.center[1] = static_cast<float>(y);
    p.center[2] = static_cast<float>(z);
    p.radius = static_cast<float>(radius);
    p.rampRow = textured ? 3.0f : -1.0f;
    p.surfaceLayer = -1.0f;
    return p;
}

// A planet whose silhouette, a circle of `pixels` radius near enough, is centred on the
// pixel (px, py), 1,000 units ahead.
PlanetInstance onScreen(double px, double py, double pixels) {
    const ScreenFrame f = frame();
    const double depth = 1000.0;
    const double perPixel = 2.0 * f.ndcToRayY / kHeight * depth;
    return planet((px / kWidth * 2 - 1) * f.ndcToRayX * depth,
                  (py / kHeight * 2 - 1) * f.ndcToRayY * depth, -depth, pixels * perPixel);
}

TEST(PlanetDraws, SilhouetteBoxHoldsTheProjectedSphereTightly) {
    const ScreenFrame f = frame();
    for (const PlanetInstance& p : {planet(0, 0, -500, 50), planet(300, 200, -400, 60),
                                    planet(10, -5, -3000, 2), planet(-900, 10, -600, 150)}) {
        const auto box = silhouetteBox(p, f);
        ASSERT_TRUE(box);
        // Every point of the sphere, projected, and the extremes they reach.
        double left = 1e9, right = -1e9, bottom = 1e9, top = -1e9;
        for (int i = 0; i <= 200; ++i) {
            for (int j = 0; j < 400; ++j) {
                const double polar = std::numbers::pi * i / 200;
                const double around = 2 * std::numbers::pi * j / 400;
                const double x = p.center[0] + p.radius * std::sin(polar) * std::cos(around);
                const double y = p.center[1] + p.radius * std::cos(polar);
                const double z = p.center[2] + p.radius * std::sin(polar) * std::sin(around);
                const double px = (x / -z / f.ndcToRayX + 1) / 2 * kWidth;
                const double py = (y / -z / f.ndcToRayY + 1) / 2 * kHeight;
                left = std::min(left, px);
                right = std::max(right, px);
                bottom = std::min(bottom, py);
                top = std::max(top, py);
            }
        }
        EXPECT_NEAR(box->left, left, 0.05);
        EXPECT_NEAR(box->right, right, 0.05);
        EXPECT_NEAR(box->bottom, bottom, 0.05);
        EXPECT_NEAR(box->top, top, 0.05);
    }
    // A sphere that reaches the plane of the eye has no bounded silhouette.
    EXPECT_FALSE(silhouetteBox(planet(0, 0, -10, 20), f));
}

TEST(PlanetDraws, CullingDropsWhatLeavesNoPixel_KeepingTheOrder) {
    std::vector<PlanetInstance> planets{
        planet(0, 0, -500, 10, true),    // in the middle
        planet(-2000, 0, -500, 10),      // far to the left
        planet(0, 0, 100, 10),           // behind the eye
        planet(0, 0, -5, 20),            // around the plane of the eye
        onScreen(-3, 300, 3.2),          // its edge reaches into the first column
        onScreen(kWidth + 5, 300, 3.0)}; // its edge stays off screen
    std::erase_if(planets, [](const PlanetInstance& p) { return !showsOnScreen(p, frame()); });
    ASSERT_EQ(planets.size(), 3u);
    EXPECT_EQ(planets[0].rampRow, 3.0f);
    EXPECT_EQ(planets[1].radius, 20.0f);
    EXPECT_LT(planets[2].center[0], 0.0f);
}

TEST(PlanetDraws, SmallSilhouettesOnScreenAreSprites) {
    const auto shape = [](const PlanetInstance& p, double maxSpriteSide = 255.0) {
        return shapeOf(p, frame(maxSpriteSide));
    };
    EXPECT_EQ(shape(onScreen(400, 300, 3.9)), PlanetShape::tinySprite);
    EXPECT_EQ(shape(onScreen(400, 300, 4.1)), PlanetShape::sprite);
    EXPECT_EQ(shape(onScreen(400, 300, 60)), PlanetShape::sprite);
    EXPECT_EQ(shape(onScreen(400, 300, 70)), PlanetShape::quad);
    EXPECT_EQ(shape(onScreen(400, 300, 20), 30.0), PlanetShape::quad); // the OpenGL's limit
    // Only the part on screen counts: a large planet showing a corner is a sprite, one
    // showing a long stretch of its rim is not. Neither is tiny.
    EXPECT_EQ(shape(onScreen(-90, -90, 100)), PlanetShape::sprite);
    EXPECT_EQ(shape(onScreen(-90, 300, 100)), PlanetShape::quad);
    EXPECT_EQ(shape(planet(0, 0, -10, 20)), PlanetShape::quad);
}

// Planets from a pattern: 't' textured, 'p' plain; lower case sprites, upper case quads;
// 'i' and 'j' tiny sprites, textured and plain.
std::string drawsOf(const std::string& pattern) {
    std::vector<PlanetInstance> instances;
    for (char c : pattern) {
        PlanetInstance p = onScreen(400, 300,
                                    c == 'i' || c == 'j' ? 2
                                    : std::islower(c)    ? 10
                                                         : 200);
        p.rampRow = c == 't' || c == 'T' || c == 'i' ? 3.0f : -1.0f;
        instances.push_back(p);
    }
    std::vector<PlanetDraw> draws{{7, 7, true, PlanetShape::sprite}}; // replaced, not appended to
    groupPlanetDraws(instances, frame(), draws);
    std::string text;
    for (const PlanetDraw& draw : draws)
        text += std::string(draw.shape == PlanetShape::quad     ? "q"
                            : draw.shape == PlanetShape::sprite ? "s"
                                                                : "i") +
                (draw.textured ? "t" : "p") + std::to_string(draw.first) + "+" +
                std::to_string(draw.count) + " ";
    return text;
}

TEST(PlanetDraws, KeepTheOrder_ShortRunsJoinTheMoreGeneralDraws) {
    static_assert(kShortestDraw == 16);
    const std::string plains(16, 'p');
    const std::string fewer(15, 'p');
    EXPECT_EQ(drawsOf(""), "");
    EXPECT_EQ(drawsOf("ppp"), "sp0+3 "); // a scene of a few plain sprites stays so
    EXPECT_EQ(drawsOf("tt" + plains + "t"), "st0+2 sp2+16 st18+1 ");
    EXPECT_EQ(drawsOf("tt" + fewer + "t"), "st0+18 ");
    // Short stretches of sprites among quads are drawn as quads, and then plain among
    // textured ones as textured.
    EXPECT_EQ(drawsOf("P" + plains + "P"), "qp0+1 sp1+16 qp17+1 ");
    EXPECT_EQ(drawsOf("PP" + fewer + "PP"), "qp0+19 ");
    EXPECT_EQ(drawsOf("T" + fewer + "T"), "qt0+17 ");
    EXPECT_EQ(drawsOf("T" + plains + "pt"), "qt0+1 sp1+17 st18+1 ");
    // Tiny sprites take a draw of their own only when textured.
    const std::string tiny(16, 'i');
    EXPECT_EQ(drawsOf("t" + tiny + "t"), "st0+1 it1+16 st17+1 ");
    EXPECT_EQ(drawsOf("t" + std::string(15, 'i') + "t"), "st0+17 ");
    EXPECT_EQ(drawsOf(std::string(16, 'j') + "ppp"), "sp0+19 ");
}

TEST(PlanetDraws, LargestSurfaceRadiusComesFromSurfacedPlanetsOnly) {
    std::vector<PlanetInstance> planets{onScreen(400, 300, 50), onScreen(100, 100, 10),
                                        onScreen(600, 200, 20)};
    EXPECT_EQ(largestSurfaceRadius(planets, frame()), 0.0);
    planets[1].surfaceLayer = 0.0f;
    planets[2].surfaceLayer = 1.0f;
    EXPECT_NEAR(largestSurfaceRadius(planets, frame()), 20.0, 1.0);
    planets.push_back(planet(0, 0, -10, 20));
    planets.back().surfaceLayer = 2.0f;
    EXPECT_EQ(largestSurfaceRadius(planets, frame()), std::numeric_limits<double>::infinity());
}

} // namespace
} // namespace orrery::render
