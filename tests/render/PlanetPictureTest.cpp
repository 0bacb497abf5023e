#include "RenderTestSupport.h"

#include "core/scene/PlanetNodes.h"
#include "core/styles/GradientLibrary.h"
#include "core/styles/StyleImages.h"

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

TEST_F(PlanetPicture, NothingToDrawIsFullyTransparent_HiddenPlanetsIncluded) {
    SceneView view;
    const Image empty = draw(view, 320, 240);
    EXPECT_EQ(countPixels(empty, [](Rgba p) { return p.r + p.g + p.b + p.a > 0; }), 0);

    view.createPlanet("1", "0", "0", "0", "24");
    view.updateStatus("1", 0);
    const Image hidden = draw(view, 320, 240);
    EXPECT_EQ(countPixels(hidden, [](Rgba p) { return p.r + p.g + p.b + p.a > 0; }), 0);

    // The same renderer notices the planet coming back.
    view.updateStatus("1", 1);
    const Image shown = draw(view, 320, 240);
    EXPECT_EQ(pixelAt(shown, 160, 120).a, 255);
}

TEST_F(PlanetPicture, NearerPlanetCoversTheFartherOneWhateverTheOrder) {
    for (const bool nearFirst : {true, false}) {
        SceneView view;
        view.updateLight("0", "0", "500"); // at the eye: both faces lit
        if (nearFirst)
            view.createPlanet2("1", kRed, 0, 1, "0", "0", "100", "20");
        view.createPlanet2("2", kGreen, 0, 1, "0", "0", "-100", "60");
        if (!nearFirst)
            view.createPlanet2("1", kRed, 0, 1, "0", "0", "100", "20");
        const Image image = draw(view, 400, 300);
        const Rgba centre = pixelAt(image, 200, 150);
        EXPECT_GT(centre.r, 200) << nearFirst;
        EXPECT_EQ(centre.g, 0) << nearFirst;
        // Beside the small near planet the far one shows.
        const Rgba aside = pixelAt(image, 200 + 28, 150);
        EXPECT_EQ(aside.r, 0) << nearFirst;
        EXPECT_GT(aside.g, 100) << nearFirst;
    }
}

TEST_F(PlanetPicture, IntersectingPlanetsMeetAlongTheirTrueIntersection) {
    SceneView view;
    view.updateLight("0", "0", "500");
    view.createPlanet2("1", kRed, 0, 1, "-20", "0", "0", "30");
    view.createPlanet2("2", kGreen, 0, 1, "20", "0", "0", "30");
    const Image image = draw(view, 400, 300);
    // Seen from the front, equal spheres meet on the plane x = 0: left red, right green.
    const Vec3 left = view.projection(400, 300).project({-4, 0, 25.4});
    const Vec3 right = view.projection(400, 300).project({4, 0, 25.4});
    EXPECT_GT(pixelUnder(image, left.x, left.y).r, 150);
    EXPECT_EQ(pixelUnder(image, left.x, left.y).g, 0);
    EXPECT_GT(pixelUnder(image, right.x, right.y).g, 150);
    EXPECT_EQ(pixelUnder(image, right.x, right.y).r, 0);
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

// The diffuse texture of a styled planet is its gradient drawn top to bottom on a square
// as wide as the planet's circumference; what the renderer shows must match that image,
// lit by the light, pixel for pixel.
TEST_F(PlanetPicture, GradientDiffuseMatchesTheSquareGradientImage) {
    constexpr std::int64_t kStyle = 12; // orange at the top, red, then blue at the bottom
    constexpr double kRadius = 100.0;
    SceneView view;
    view.updateCamera(45, 45, 0, 0, 400, true, true);
    view.updateLight("0", "0", "400");
    view.createPlanet2("1", kRed, kStyle, 1, "0", "0", "0", "100"); // no surface image
    const Image image = draw(view, 600, 600);

    const double side = kTwoPi * kRadius;
    const Image texture =
        makeGradientImage(gradientLibrary().getGradient(kStyle), side, side, kGradientAngle);
    const auto textureRow = [&](double v, int channel) {
        // Linear between row centres, as a texture is sampled.
        const double row = std::clamp(v * texture.height - 0.5, 0.0, texture.height - 1.0);
        const int above = static_cast<int>(row);
        const int below = std::min(above + 1, texture.height - 1);
        const double f = row - above;
        return texture.pixel(0, above)[channel] * (1 - f) + texture.pixel(0, below)[channel] * f;
    };

    const CameraProjection camera = view.projection(600, 600);
    int compared = 0;
    int worst = 0;
    for (int y = 0; y < 600; y += 3) {
        for (int x = 0; x < 600; x += 3) {
            const double viewX = x + 0.5;
            const double viewY = 600 - (y + 0.5);
            const auto hits = hitTest(view.scene().rootNode(), camera, viewX, viewY);
            if (hits.empty() || pixelAt(image, x, y).a != 255)
                continue;
            const Vec3 normal = hits[0].localCoordinates * (1.0 / kRadius);
            if (normal.z < 0.2)
                continue; // close to the rim, where a pixel spans many texture rows
            const double v = std::acos(std::clamp(normal.y, -1.0, 1.0)) / std::numbers::pi;
            const Vec3 toLight = Vec3{0, 0, 400} - hits[0].worldCoordinates;
            const double lambert = std::max(0.0, dot(normal, toLight) / length(toLight));
            const Rgba p = pixelAt(image, x, y);
            const int actual[3] = {p.r, p.g, p.b};
            for (int c = 0; c < 3; ++c) {
                const int expected = linearToSrgbByte(srgbToLinear(textureRow(v, c)) * lambert);
                worst = std::max(worst, std::abs(expected - actual[c]));
            }
            ++compared;
        }
    }
    EXPECT_GT(compared, 1000);
    EXPECT_LE(worst, 4);

    // And in plain words: orange on top, blue at the bottom.
    const Vec3 top = camera.project({0, 60, 80});
    const Vec3 bottom = camera.project({0, -80, 60});
    const Rgba north = pixelUnder(image, top.x, top.y);
    const Rgba south = pixelUnder(image, bottom.x, bottom.y);
    EXPECT_GT(north.r, north.b + 100);
    EXPECT_GT(south.b, south.r * 3 / 2);
}

TEST_F(PlanetPicture, StyleWithoutGradientIsInvisible) {
    SceneView view;
    view.createPlanet2("1", kRed, 85, 1, "0", "0", "0", "24");
    const Image image = draw(view, 200, 200);
    EXPECT_EQ(countPixels(image, [](Rgba p) { return p.a > 0; }), 0);
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

TEST_F(PlanetPicture, OneRendererServesSeveralViews) {
    SceneView first;
    first.createPlanet2("1", kRed, 0, 1, "0", "0", "0", "24");
    first.updateLight("0", "0", "500");
    SceneView second;
    second.createPlanet2("1", kGreen, 0, 1, "0", "0", "0", "24");
    second.updateLight("0", "0", "500");
    for (int round = 0; round < 2; ++round) {
        EXPECT_GT(pixelAt(draw(first, 200, 200), 100, 100).r, 200);
        EXPECT_GT(pixelAt(draw(second, 200, 200), 100, 100).g, 200);
    }
}

} // namespace
} // namespace orrery::testing
