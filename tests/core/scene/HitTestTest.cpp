#include "core/scene/HitTest.h"
#include "core/scene/Scene.h"
#include "core/scene/SceneDepthRange.h"
#include "core/scene/SceneView.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

std::shared_ptr<SceneNode> addSphere(SceneNode& parent, const std::string& name, Vec3 position,
                                     double radius) {
    auto node = SceneNode::create();
    node->setName(name);
    node->setPosition(position);
    node->setSphere(Sphere{radius, std::nullopt});
    parent.addChildNode(node);
    return node;
}

// A camera at z 500 with an 800 x 600 view; the view centre looks down -z.
CameraProjection cameraFor(const Scene& scene) {
    const Vec3 eye{0, 0, 500};
    return CameraProjection(eye, 45.0, 800, 600, SceneDepthRange().of(scene, eye));
}

TEST(HitTest, ReturnsEveryHitNearestFirst_OnTheSphereUnderTheViewPoint) {
    Scene scene;
    addSphere(scene.rootNode(), "far", {0, 0, -100}, 30);
    addSphere(scene.rootNode(), "near", {0, 0, 100}, 10);
    addSphere(scene.rootNode(), "aside", {40, -30, -20}, 25);
    const CameraProjection camera = cameraFor(scene);
    const auto hits = hitTest(scene.rootNode(), camera, 400, 300);
    ASSERT_EQ(hits.size(), 2u);
    EXPECT_EQ(hits[0].node->name(), "near");
    EXPECT_EQ(hits[1].node->name(), "far");
    EXPECT_NEAR(hits[0].localCoordinates.z, 10.0, 1e-9);
    EXPECT_NEAR(hits[0].worldCoordinates.z, 110.0, 1e-9);
    EXPECT_NEAR(hits[0].distance, 390.0, 1e-9);
    EXPECT_NEAR(hits[1].localCoordinates.z, 30.0, 1e-9);

    // Off the centre of a sphere, the hit point is on its surface and under the view point.
    const Vec3 centre = camera.project({40, -30, -20});
    const auto aside = hitTest(scene.rootNode(), camera, centre.x + 7, centre.y + 5);
    ASSERT_EQ(aside.size(), 1u);
    EXPECT_NEAR(length(aside[0].localCoordinates), 25.0, 1e-9);
    const Vec3 seen = camera.project(aside[0].worldCoordinates);
    EXPECT_NEAR(seen.x, centre.x + 7, 1e-9);
    EXPECT_NEAR(seen.y, centre.y + 5, 1e-9);
}

TEST(HitTest, EdgeOfTheSilhouette) {
    Scene scene;
    addSphere(scene.rootNode(), "p", {0, 0, 0}, 24);
    const CameraProjection camera = cameraFor(scene);
    // The silhouette of a sphere seen from distance d has the half-angle asin(r / d).
    const double halfAngle = std::asin(24.0 / 500.0);
    const double radiusInView = std::tan(halfAngle) * (1.0 / std::tan(22.5 * M_PI / 180)) * 300;
    EXPECT_EQ(hitTest(scene.rootNode(), camera, 400 + radiusInView - 0.01, 300).size(), 1u);
    EXPECT_EQ(hitTest(scene.rootNode(), camera, 400 + radiusInView + 0.01, 300).size(), 0u);
}

TEST(HitTest, HiddenDegenerateAndSurroundingSpheresAreNeverHit) {
    Scene scene;
    addSphere(scene.rootNode(), "hidden", {0, 0, 0}, 24)->setHidden(true);
    addSphere(scene.rootNode(), "zero", {0, 0, 10}, 0);
    addSphere(scene.rootNode(), "negative", {0, 0, 20}, -5);
    addSphere(scene.rootNode(), "aroundEye", {0, 0, 490}, 50);
    addSphere(scene.rootNode(), "behindEye", {0, 0, 700}, 50);
    auto group = addSphere(scene.rootNode(), "group", {0, 0, -400}, 0);
    addSphere(*group, "insideHiddenGroup", {0, 0, 0}, 30);
    group->setHidden(true);
    EXPECT_TRUE(hitTest(scene.rootNode(), cameraFor(scene), 400, 300).empty());
    group->setHidden(false);
    const auto hits = hitTest(scene.rootNode(), cameraFor(scene), 400, 300);
    ASSERT_EQ(hits.size(), 1u);
    EXPECT_EQ(hits[0].node->name(), "insideHiddenGroup");
    EXPECT_NEAR(hits[0].worldCoordinates.z, -370, 1e-9);
}

TEST(HitTest, SceneViewHitsItsPlanets) {
    SceneView view;
    view.setViewSize(640, 480);
    view.createPlanet("1", "0", "0", "0", "24");
    const auto hits = view.hitTest({320, 240});
    ASSERT_EQ(hits.size(), 1u);
    EXPECT_EQ(hits[0].node->name(), "planet1");
    view.updateStatus("1", 0);
    EXPECT_TRUE(view.hitTest({320, 240}).empty());
}

} // namespace
} // namespace orrery
