#include "core/export/PackageScene.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

// A package as reading gives it, every check passed: 1200 x 700, navy, camera at
// (10, 20, 800), light at (-50, 60, 70) in orange, two planets of which one is hidden.
OpenedProject openedPackage() {
    OpenedProject project;
    project.settings = {"1200",  "700", "3", "45.0", "45.0",      "10",       "20.000000",
                        "800.0", "1",   "1", "-50",  "60.000000", "70.000000"};
    project.checks.width = project.checks.height = project.checks.background = true;
    project.checks.cameraFields = {true, true, true, true, true};
    project.checks.camera = true;
    project.checks.lightFields = {true, true, true};
    project.checks.light = true;
    project.lightColor = Color{1.0, 0.5, 0.0, 1.0};
    PlanetRecord shown = newPlanetRecord("100", "Shown");
    shown.xvalue = "5";
    shown.radius = "30";
    shown.surfaceindex = "3";
    PlanetRecord hidden = newPlanetRecord("200", "Hidden");
    hidden.state = "0";
    project.planets = {shown, hidden};
    return project;
}

TEST(PackageScene, SizeAndBackgroundOnlyWhenTheirChecksPass) {
    OpenedProject project = openedPackage();
    EXPECT_EQ(packageDocumentSize(project), (DocumentSize{1200, 700}));
    EXPECT_EQ(packageBackground(project), 3);
    project.checks.height = false; // one refused side keeps the whole first-start size
    EXPECT_EQ(packageDocumentSize(project), (DocumentSize{960, 540}));
    project.checks.background = false;
    EXPECT_EQ(packageBackground(project), 0);
}

TEST(PackageScene, SceneFollowsThePackage) {
    SceneView view;
    loadPackageScene(view, openedPackage());
    EXPECT_EQ(view.cameraNode().position(), (Vec3{10, 20, 800}));
    EXPECT_EQ(view.lightNode().position(), (Vec3{-50, 60, 70}));
    ASSERT_TRUE(view.lightNode().light());
    EXPECT_EQ(view.lightNode().light()->color, (Color{1.0, 0.5, 0.0, 1.0}));
    EXPECT_EQ(view.viewWidth(), 1200);
    EXPECT_EQ(view.viewHeight(), 700);

    const auto shown = view.scene().rootNode().childNodesNamed("planet100");
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0]->position(), (Vec3{5, 0, 0}));
    ASSERT_TRUE(shown[0]->sphere());
    EXPECT_EQ(shown[0]->sphere()->radius, 30);
    // Opening does not hide a planet whose state is "0".
    const auto hidden = view.scene().rootNode().childNodesNamed("planet200");
    ASSERT_EQ(hidden.size(), 1u);
    EXPECT_FALSE(hidden[0]->isHidden());
}

TEST(PackageScene, RefusedCameraAndLightKeepTheFreshScene) {
    OpenedProject project = openedPackage();
    project.checks.camera = false;
    project.checks.light = false;
    SceneView view;
    loadPackageScene(view, project);
    EXPECT_EQ(view.cameraNode().position(), (Vec3{0, 0, 500}));
    EXPECT_EQ(view.lightNode().position(), (Vec3{0, 0, 100}));
    // The colour is no checked value: it always applies.
    EXPECT_EQ(view.lightNode().light()->color, (Color{1.0, 0.5, 0.0, 1.0}));
}

} // namespace
} // namespace orrery
