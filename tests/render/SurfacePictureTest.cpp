#include "RenderTestSupport.h"

namespace orrery::testing {
namespace {

constexpr Color kBlue{0.0, 0.0, 1.0, 1.0};

// An equirectangular test surface: four quarters in four colours. Columns are longitude
// (u), rows latitude from the north pole (v).
Image quarters(int width, int height) {
    Image image(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool east = x >= width / 2;
            const bool south = y >= height / 2;
            std::uint8_t* p = image.pixel(x, y);
            p[0] = !south ? (east ? 0 : 255) : (east ? 255 : 0); // red NW, yellow SE
            p[1] = !south ? (east ? 255 : 0) : (east ? 255 : 0); // green NE, yellow SE
            p[2] = south && !east ? 255 : 0;                     // blue SW
            p[3] = 255;
        }
    }
    return image;
}

using SurfacePicture = RenderTest;

// With the light behind the planet only the emission shows, so the picture is the surface
// image itself: the image's middle faces the viewer, its top is the north pole, and it is
// not mirrored.
TEST_F(SurfacePicture, SurfaceFacesTheViewerUprightAndUnmirrored) {
    for (const auto& size : {std::pair{1024, 512}, std::pair{300, 150}}) {
        surfaces.clear();
        surfaces["Surface004"] = quarters(size.first, size.second);
        SceneView view;
        view.updateLight("0", "0", "-1000");
        view.createPlanet2("1", kBlue, 0, 4, "0", "0", "0", "100");
        const Image image = draw(view, 600, 600);
        const CameraProjection camera = view.projection(600, 600);
        const auto at = [&](double x, double y) {
            const double z = std::sqrt(100.0 * 100.0 - x * x - y * y);
            const Vec3 p = camera.project({x, y, z});
            return pixelUnder(image, p.x, p.y);
        };
        // Where each quarter shows, and its red, green and blue on or off.
        const struct {
            double x, y;
            std::array<bool, 3> on;
        } quarterColours[] = {{-40, 40, {true, false, false}},
                              {40, 40, {false, true, false}},
                              {-40, -40, {false, false, true}},
                              {40, -40, {true, true, false}}};
        for (const auto& q : quarterColours) {
            const Rgba p = at(q.x, q.y);
            const int channels[3] = {p.r, p.g, p.b};
            for (std::size_t c = 0; c < 3; ++c) {
                if (q.on[c])
                    EXPECT_GT(channels[c], 240) << q.x << "," << q.y;
                else
                    EXPECT_LT(channels[c], 15) << q.x << "," << q.y;
            }
        }
    }
}

// Emission adds to the lit colour; a surface with no image adds nothing.
TEST_F(SurfacePicture, EmissionIsAddedToTheLitColour) {
    surfaces["Surface002"] = solidImage(64, 32, {0, 0, 100, 255});
    SceneView view;
    view.createPlanet2("1", {1.0, 0.0, 0.0, 1.0}, 0, 2, "0", "0", "0", "24");
    const Rgba glowing = pixelAt(draw(view, 400, 300), 200, 150);
    EXPECT_GE(glowing.r, 254); // red diffuse facing the light
    EXPECT_EQ(glowing.g, 0);
    EXPECT_NEAR(glowing.b, 100, 2); // plus the blue glow

    view.updateLight("0", "0", "-1000");
    view.updatePlanet("1", {1.0, 0.0, 0.0, 1.0}, 0, 9, "0", "0", "0", "24");
    const Rgba unlit = pixelAt(draw(view, 400, 300), 200, 150);
    EXPECT_EQ(unlit.a, 255);
    EXPECT_EQ(unlit.r + unlit.g + unlit.b, 0);
}

// Small planets (sprites) and, behind them, tiny ones (sprites that read a single texel),
// enough of them in a row for a draw of their own.
TEST_F(SurfacePicture, EachSurfaceIsFetchedOnceForAllItsPlanets) {
    surfaces["Surface001"] = solidImage(64, 32, {255, 0, 0, 255});
    surfaces["Surface002"] = solidImage(64, 32, {0, 255, 0, 255});
    SceneView view;
    view.updateLight("0", "0", "-1000");
    const auto centre = [](int i) {
        return i < 4 ? Vec3{-190.0 + 20 * i, 0, 0} : Vec3{-190.0 + 10 * i, -60, -100};
    };
    const auto radius = [](int i) {
        return i < 4 ? 8.0 : 2.0;
    };
    for (int i = 0; i < 24; ++i)
        view.createPlanet2(std::to_string(i), kBlue, 0, 1 + i % 2, std::to_string(centre(i).x),
                           std::to_string(centre(i).y), std::to_string(centre(i).z),
                           std::to_string(radius(i)));
    const Image image = draw(view, 800, 400);
    draw(view, 800, 400);
    EXPECT_EQ(surfaceRequests, 2);
    const CameraProjection camera = view.projection(800, 400);
    for (const int i : {0, 1, 4, 5}) {
        const Vec3 front = camera.project(centre(i) + Vec3{0, 0, radius(i)});
        const Rgba p = pixelUnder(image, front.x, front.y);
        EXPECT_GT(i % 2 == 0 ? p.r : p.g, 240) << i;
        EXPECT_LT(i % 2 == 0 ? p.g : p.r, 15) << i;
    }
}

} // namespace
} // namespace orrery::testing
