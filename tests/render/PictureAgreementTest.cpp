#include "RenderTestSupport.h"

#include <random>

namespace orrery::testing {
namespace {

using PictureAgreement = RenderTest;

// What the mouse can pick is exactly what the picture shows: the hit test and the
// renderer share one projection, so a click lands on the planet drawn under it.
TEST_F(PictureAgreement, HitTestPicksThePlanetDrawnUnderThePoint) {
    const Color colours[] = {{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}};
    SceneView view;
    view.updateLight("0", "0", "500");
    std::mt19937 random(7);
    std::uniform_real_distribution<double> across(-150, 150);
    std::uniform_real_distribution<double> depth(-300, 150);
    std::uniform_real_distribution<double> size(5, 40);
    for (int i = 0; i < 30; ++i)
        view.createPlanet2(std::to_string(i), colours[i % 3], 0, 1, std::to_string(across(random)),
                           std::to_string(across(random) * 0.6), std::to_string(depth(random)),
                           std::to_string(size(random)));
    constexpr int kWidth = 640;
    constexpr int kHeight = 360;
    view.setViewSize(kWidth, kHeight);
    const Image image = draw(view, kWidth, kHeight);

    // The nearest planet under a view point, or "" for none.
    const auto nearestAt = [&](double viewX, double viewY) {
        const auto found = view.hitTest({viewX, viewY});
        return found.empty() ? std::string() : found[0].node->name();
    };
    int hits = 0;
    int misses = 0;
    for (int y = 0; y < kHeight; y += 2) {
        for (int x = 0; x < kWidth; x += 2) {
            const double viewX = x + 0.5;
            const double viewY = kHeight - (y + 0.5);
            const std::string nearest = nearestAt(viewX, viewY);
            // Pixels on any silhouette mix what lies on either side; compare the others.
            bool interior = true;
            for (const double dx : {-0.5, 0.5})
                for (const double dy : {-0.5, 0.5})
                    interior = interior && nearestAt(viewX + dx, viewY + dy) == nearest;
            if (!interior)
                continue;
            const Rgba p = pixelAt(image, x, y);
            ASSERT_EQ(p.a, nearest.empty() ? 0 : 255) << x << "," << y;
            if (nearest.empty()) {
                ++misses;
                continue;
            }
            ++hits;
            // The nearest planet's colour is the one on screen.
            const Color& c = colours[std::stoi(nearest.substr(6)) % 3];
            const int strongest = p.r >= p.g && p.r >= p.b ? 0 : (p.g >= p.b ? 1 : 2);
            const int expected = c.red > 0 ? 0 : (c.green > 0 ? 1 : 2);
            if (p.r + p.g + p.b > 30) { // too dark to tell near the rim
                ASSERT_EQ(strongest, expected) << x << "," << y;
            }
        }
    }
    EXPECT_GT(hits, 1000);
    EXPECT_GT(misses, 1000);
}

} // namespace
} // namespace orrery::testing
