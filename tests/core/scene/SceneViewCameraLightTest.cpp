#include "core/scene/SceneView.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(SceneViewSetup, RootHoldsExactlyTheCameraAndTheLight) {
    SceneView view;
    const auto& children = view.scene().rootNode().children();
    ASSERT_EQ(children.size(), 2u);

    const SceneNode& camera = *children.front();
    EXPECT_EQ(&camera, &view.cameraNode());
    EXPECT_EQ(camera.name(), "");
    EXPECT_EQ(camera.position(), (Vec3{0, 0, 500}));
    ASSERT_TRUE(camera.camera().has_value());
    EXPECT_EQ(camera.camera()->xFov, 45.0);
    EXPECT_EQ(camera.camera()->yFov, 45.0);
    EXPECT_EQ(camera.camera()->orthographicScale, 1.0);
    EXPECT_TRUE(camera.camera()->automaticallyAdjustsZRange);
    EXPECT_FALSE(camera.camera()->usesOrthographicProjection);

    const SceneNode& light = *children.back();
    EXPECT_EQ(&light, &view.lightNode());
    EXPECT_EQ(light.name(), "light");
    EXPECT_EQ(light.position(), (Vec3{0, 0, 100}));
    ASSERT_TRUE(light.light().has_value());
    EXPECT_EQ(light.light()->type, LightType::omni);
    EXPECT_EQ(light.light()->name, "light");
    EXPECT_EQ(light.light()->color, kWhite);

    EXPECT_EQ(
        view.getCameraSettings(),
        (std::vector<std::string>{"45.0", "45.0", "0.000000", "0.000000", "500.000000", "1", "1"}));
}

TEST(SceneViewCamera, SettingsAreRecorded_OnlyThePositionMovesThePicture) {
    SceneView view;
    const Vec3 before = view.projectPoint({30, 20, 0});
    view.updateCamera(60, 33.3333, 0, 0, 500, false, true);
    EXPECT_EQ(
        view.getCameraSettings(),
        (std::vector<std::string>{"60.0", "33.3", "0.000000", "0.000000", "500.000000", "0", "1"}));
    EXPECT_EQ(view.projectPoint({30, 20, 0}), before);
    EXPECT_EQ(view.cameraNode().camera()->yFov, 45.0);

    view.updateCamera(45, 45, -12.5, 3, 250, true, false);
    EXPECT_EQ(view.cameraNode().position(), (Vec3{-12.5, 3, 250}));
    EXPECT_EQ(view.getCameraSettings()[2], "-12.500000");
    EXPECT_FALSE(view.cameraNode().camera()->usesOrthographicProjection);
    // Still the only camera, first child: attaching again does not move it.
    EXPECT_EQ(view.scene().rootNode().children().front().get(), &view.cameraNode());
    EXPECT_EQ(view.scene().rootNode().childCount(), 2u);
    // The point straight ahead of the camera is the middle of the view.
    const Vec3 ahead = view.projectPoint({-12.5, 3, 0});
    EXPECT_NEAR(ahead.x, view.viewWidth() / 2, 1e-9);
    EXPECT_NEAR(ahead.y, view.viewHeight() / 2, 1e-9);
}

TEST(SceneViewLight, NewColourReplacesTheLightWhereItStood) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    view.updateLight("1.5", "-2", "zz"); // texts are read as leading single-precision numbers
    EXPECT_EQ(view.getLightPosition(), (Vec3{1.5, -2, 0}));
    view.updateLight("5", "6", "7.1");
    const Color orange{1.0, 0.5, 0.0, 1.0};
    view.updateLightColor(orange);
    const auto lights = view.scene().rootNode().childNodesNamed("light");
    ASSERT_EQ(lights.size(), 1u);
    EXPECT_EQ(lights[0].get(), &view.lightNode());
    EXPECT_EQ(lights[0]->position(), (Vec3{5, 6, static_cast<double>(7.1f)}));
    EXPECT_EQ(lights[0]->light()->color, orange);
    EXPECT_EQ(lights[0]->light()->name, "light");
    // The new light is appended after the planets.
    EXPECT_EQ(view.scene().rootNode().children().back(), lights[0]);
}

} // namespace
} // namespace orrery
