#include "RenderTestSupport.h"

#include "core/scene/PlanetNodes.h"
#include "render/PlanetDraws.h"

#include <cmath>

namespace orrery::testing {
namespace {

constexpr int kWidth = 1000;
constexpr int kHeight = 800;
constexpr Color kRed{1.0, 0.0, 0.0, 1.0};
constexpr Color kGreen{0.0, 1.0, 0.0, 1.0};

int countPixels(const Image& image, auto predicate) {
    int count = 0;
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            count += predicate(pixelAt(image, x, y)) ? 1 : 0;
    return count;
}

using PlanetPicture = RenderTest;

TEST_F(PlanetPicture, DefaultPlanetIsARoundWhiteDiscFacingTheLight) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    const Image image = draw(view, kWidth, kHeight);
    ASSERT_EQ(image.width, kWidth);
    ASSERT_EQ(image.height, kHeight);

    const double radius = silhouetteRadius(24, 500, kHeight);
    int edgePixels = 0;
    int softEdgePixels = 0;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const double distance = std::hypot(x + 0.5 - kWidth / 2.0, y + 0.5 - kHeight / 2.0);
            const Rgba p = pixelAt(image, x, y);
            if (distance < radius - 1.0) {
                ASSERT_EQ(p.a, 255) << x << "," << y;
            } else if (distance > radius + 1.0) {
                ASSERT_EQ(p.a, 0) << x << "," << y;
            } else {
                ++edgePixels;
                softEdgePixels += p.a > 0 && p.a < 255 ? 1 : 0;
            }
        }
    }
    // Multisampling leaves most pixels on the rim partly covered instead of a staircase.
    EXPECT_GT(softEdgePixels, edgePixels / 3);

    // The middle of the disc faces the light squarely: full white.
    const Rgba centre = pixelAt(image, kWidth / 2, kHeight / 2);
    EXPECT_GE(centre.r, 254);
    EXPECT_GE(centre.g, 254);
    EXPECT_GE(centre.b, 254);
    // Towards the rim the surface turns away from the light and darkens.
    const Rgba nearRim = pixelAt(image, kWidth / 2 + static_cast<int>(radius * 0.9), kHeight / 2);
    EXPECT_LT(nearRim.r, centre.r - 40);
    EXPECT_EQ(nearRim.r, nearRim.g);
    EXPECT_EQ(nearRim.g, nearRim.b);
}

TEST_F(PlanetPicture, LightBehindThePlanetLeavesItsVisibleFaceDark) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    view.updateLight("0", "0", "-100");
    const Image image = draw(view, 400, 300);
    EXPECT_GT(countPixels(image, [](Rgba p) { return p.a == 255; }), 100);
    EXPECT_EQ(countPixels(image, [](Rgba p) { return p.a > 0 && (p.r + p.g + p.b) > 0; }), 0);
}

TEST_F(PlanetPicture, LightColourTintsTheSurface) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    view.updateLightColor({1.0, 0.5, 0.0, 1.0});
    const Image image = draw(view, 400, 300);
    const Rgba centre = pixelAt(image, 200, 150);
    EXPECT_GE(centre.r, 254);
    EXPECT_NEAR(centre.g, 128, 2);
    EXPECT_EQ(centre.b, 0);
}

// Nothing, a hidden planet and a style without gradient all leave a transparent picture.
TEST_F(PlanetPicture, NothingToDrawIsFullyTransparent) {
    const auto blank = [](const Image& image) {
        return countPixels(image, [](Rgba p) { return p.r + p.g + p.b + p.a > 0; }) == 0;
    };
    SceneView view;
    EXPECT_TRUE(blank(draw(view, 320, 240)));
    view.createPlanet("1", "0", "0", "0", "24");
    view.updateStatus("1", 0);
    EXPECT_TRUE(blank(draw(view, 320, 240)));
    SceneView unknownStyle;
    unknownStyle.createPlanet2("1", kRed, 85, 1, "0", "0", "0", "24");
    EXPECT_TRUE(blank(draw(unknownStyle, 320, 240)));

    // The same renderer notices the planet coming back.
    view.updateStatus("1", 1);
    const Image shown = draw(view, 320, 240);
    EXPECT_EQ(pixelAt(shown, 160, 120).a, 255);
}

TEST_F(PlanetPicture, TranslucentColourShowsWhatLiesBehind) {
    SceneView view;
    view.updateLight("0", "0", "500");
    view.createPlanet2("1", kGreen, 0, 1, "0", "0", "-100", "60");
    view.createPlanet2("2", {1.0, 0.0, 0.0, 0.5}, 0, 1, "0", "0", "100", "20");
    const Image image = draw(view, 400, 300);
    const Rgba centre = pixelAt(image, 200, 150);
    EXPECT_EQ(centre.a, 255);
    EXPECT_GT(centre.r, 100);
    EXPECT_GT(centre.g, 100);
    // Over nothing, the translucent planet keeps its own colour at half opacity.
    SceneView alone;
    alone.updateLight("0", "0", "500");
    alone.createPlanet2("2", {1.0, 0.0, 0.0, 0.5}, 0, 1, "0", "0", "100", "20");
    const Rgba single = pixelAt(draw(alone, 400, 300), 200, 150);
    EXPECT_NEAR(single.a, 128, 1);
    EXPECT_GE(single.r, 253);
    EXPECT_EQ(single.g, 0);
}

// A styled planet's diffuse colour is its gradient drawn top to bottom over the sphere.
TEST_F(PlanetPicture, GradientDiffuseRunsFromTopToBottom) {
    SceneView view;
    view.updateCamera(45, 45, 0, 0, 400, true, true);
    view.updateLight("0", "0", "400");
    view.createPlanet2("1", kRed, 12, 1, "0", "0", "0", "100"); // orange, red, then blue
    const Image image = draw(view, 600, 600);
    const CameraProjection camera = view.projection(600, 600);
    const Vec3 top = camera.project({0, 60, 80});
    const Vec3 bottom = camera.project({0, -80, 60});
    const Rgba north = pixelUnder(image, top.x, top.y);
    const Rgba south = pixelUnder(image, bottom.x, bottom.y);
    EXPECT_GT(north.r, north.b + 100);
    EXPECT_GT(south.b, south.r * 3 / 2);
}

// Plain planets behind and in front of styled ones are drawn apart from them, each by its
// own shader; every planet must still be drawn once, in its own place and colours.
TEST_F(PlanetPicture, PlainAndStyledPlanetsMixedKeepTheirLooks) {
    constexpr std::int64_t kStyle = 12; // red around the equator
    constexpr int kRow = 20;            // enough plain planets in a row for a draw of their own
    SceneView view;
    view.updateLight("0", "0", "500");
    view.createPlanet2("far", kRed, kStyle, 1, "-150", "0", "-300", "40");
    for (int i = 0; i < kRow; ++i)
        view.createPlanet("plain" + std::to_string(i), std::to_string(-190 + 20 * i), "-60",
                          std::to_string(100 - i), "6");
    view.createPlanet2("near", kRed, kStyle, 1, "150", "0", "200", "20");
    const Image image = draw(view, 600, 400);
    const CameraProjection camera = view.projection(600, 400);
    const auto at = [&](Vec3 point) {
        const Vec3 p = camera.project(point);
        return pixelUnder(image, p.x, p.y);
    };
    for (const Vec3 styled : {Vec3{-150, 0, -300}, Vec3{150, 0, 200}}) {
        const Rgba p = at(styled);
        EXPECT_GT(p.r, p.g + 80) << styled.x;
        EXPECT_GT(p.r, p.b + 80) << styled.x;
    }
    for (int i = 0; i < kRow; ++i) {
        const Rgba p = at(Vec3{-190.0 + 20 * i, -60, 100.0 - i});
        EXPECT_GT(std::min({p.r, p.g, p.b}), 150) << i;
        EXPECT_LE(std::max({p.r, p.g, p.b}) - std::min({p.r, p.g, p.b}), 2) << i;
    }
}

// Planets at the picture's edges, small ones drawn as sprites and large ones as quads:
// whatever part lies on screen is drawn, down to the soft edge of one that lies just
// beyond the top.
TEST_F(PlanetPicture, PlanetsAtThePicturesEdgesShowTheirVisiblePart) {
    constexpr int kSide = 400;
    SceneView view;
    view.updateLight("0", "0", "500");
    const CameraProjection camera = view.projection(kSide, kSide);
    const double pixelsPerUnit = kSide / 2.0 / camera.ndcToRayY() / 500.0; // at z = 0
    const render::ScreenFrame frame{camera.ndcToRayX(), camera.ndcToRayY(), kSide, kSide, 255};
    // Where the silhouette's lowest point lies, in pixels up from the bottom.
    const auto bottomOf = [&](double y, double radius) {
        render::PlanetInstance planet{};
        planet.center[1] = static_cast<float>(y);
        planet.center[2] = -500.0f;
        planet.radius = static_cast<float>(radius);
        return render::silhouetteBox(planet, frame)->bottom;
    };
    for (const double radiusPixels : {7.0, 150.0}) {
        const double radius = radiusPixels / pixelsPerUnit;
        SCOPED_TRACE(radiusPixels);
        // Centred on the top-left corner: a quarter disc.
        const double corner = kSide / 2.0 / pixelsPerUnit;
        view.createPlanet("corner", std::to_string(-corner), std::to_string(corner), "0",
                          std::to_string(radius));
        // Above the middle of the top edge, its silhouette 0.3 pixels above the centres of
        // the top row, where the soft edge still gives them a fifth of the colour: the
        // height is found by halving the interval.
        double low = 0.0;
        double high = 2.0 * corner;
        for (int i = 0; i < 60; ++i)
            (bottomOf((low + high) / 2, radius) < kSide - 0.2 ? low : high) = (low + high) / 2;
        view.createPlanet("top", "0", std::to_string(low), "0", std::to_string(radius));
        const Image image = draw(view, kSide, kSide);
        EXPECT_EQ(pixelAt(image, 0, 0).a, 255);
        EXPECT_EQ(pixelAt(image, static_cast<int>(radiusPixels / 2), 1).a, 255);
        EXPECT_NEAR(pixelAt(image, kSide / 2, 0).a, 51, 15);
        EXPECT_EQ(pixelAt(image, kSide / 2, 1).a, 0);
        view.deletePlanet("corner");
        view.deletePlanet("top");
    }
}

} // namespace
} // namespace orrery::testing
