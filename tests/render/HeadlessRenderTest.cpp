#include "RenderTestSupport.h"

#include "render/HeadlessRender.h"

namespace orrery::testing {
namespace {

TEST(HeadlessRender, DrawsAtTheRequestedSizeAndRefusesEmptyAndHugeSizes) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    std::string error;
    const auto image = renderSceneHeadless(view, 300, 200, {}, &error);
    ASSERT_TRUE(image) << error;
    EXPECT_EQ(image->width, 300);
    EXPECT_EQ(image->height, 200);
    EXPECT_EQ(image->pixel(150, 100)[3], 255);
    EXPECT_EQ(image->pixel(0, 0)[3], 0);

    EXPECT_FALSE(renderSceneHeadless(view, 0, 200, {}, &error));
    EXPECT_NE(error.find("empty"), std::string::npos) << error;
    EXPECT_FALSE(renderSceneHeadless(view, 1'000'000, 10, {}, &error));
    EXPECT_NE(error.find("larger than the renderer draws"), std::string::npos) << error;
}

// A backing scale of two draws the same picture with twice the pixels a side.
TEST(HeadlessRender, BackingScaleKeepsThePicture) {
    SceneView view;
    view.setViewSize(200, 150);
    view.createPlanet("1", "40", "10", "0", "24");
    std::string error;
    const auto single = renderSceneHeadless(view, 200, 150, {}, &error);
    const auto doubled = renderSceneHeadless(view, 400, 300, {}, &error);
    ASSERT_TRUE(single && doubled) << error;
    const Vec3 centre = view.projectPoint({40, 10, 0});
    EXPECT_EQ(pixelUnder(*single, centre.x, centre.y).a, 255);
    EXPECT_EQ(pixelUnder(*doubled, centre.x * 2, centre.y * 2).a, 255);
    const double radius = silhouetteRadius(24, 500, 150) * 0.8;
    EXPECT_EQ(pixelUnder(*doubled, (centre.x + radius) * 2, centre.y * 2).a, 255);
    EXPECT_EQ(pixelUnder(*doubled, (centre.x + radius * 1.4) * 2, centre.y * 2).a, 0);
}

} // namespace
} // namespace orrery::testing
