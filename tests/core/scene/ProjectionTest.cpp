#include "core/scene/CameraProjection.h"
#include "core/scene/Scene.h"
#include "core/scene/SceneDepthRange.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace orrery {
namespace {

void addSphere(Scene& scene, Vec3 position, double radius, bool hidden = false) {
    auto node = SceneNode::create();
    node->setPosition(position);
    node->setSphere(Sphere{radius, std::nullopt});
    node->setHidden(hidden);
    scene.rootNode().addChildNode(node);
}

void expectNear(Vec3 actual, Vec3 expected, double tolerance) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

const CameraProjection kCamera({0, 0, 500}, 45.0, 800, 600, DepthRange{400, 700});

TEST(CameraProjection, RoundTripsThroughTheView) {
    const Vec3 points[] = {{0, 0, 0}, {120, -80, 40}, {-300, 10, -150}, {1, 2, -199.5}};
    for (const Vec3 point : points)
        expectNear(kCamera.unproject(kCamera.project(point)), point, 1e-9);
    const Vec3 viewPoint{612.25, 13.5, 0.37};
    expectNear(kCamera.project(kCamera.unproject(viewPoint)), viewPoint, 1e-9);
}

TEST(CameraProjection, ViewOriginIsBottomLeft_YUp_DepthFromNearToFar_RaysThroughThePoint) {
    // A point 22.5 degrees above the axis lies on the top edge, one to the right of the
    // axis at 22.5 degrees horizontally lies inside: the horizontal field follows 4:3.
    const double edge = 500.0 * std::tan(22.5 * std::numbers::pi / 180.0);
    EXPECT_NEAR(kCamera.project({0, edge, 0}).y, 600.0, 1e-9);
    EXPECT_NEAR(kCamera.project({edge, 0, 0}).x, 400.0 + 300.0, 1e-9);
    EXPECT_NEAR(kCamera.project({-edge * 4 / 3, 0, 0}).x, 0.0, 1e-9);
    // Depth 0 at the near plane 400 in front of the eye, 1 at the far plane 700 in front.
    expectNear(kCamera.project({0, 0, 100}), {400, 300, 0}, 1e-9);
    expectNear(kCamera.project({0, 0, -200}), {400, 300, 1}, 1e-9);
    EXPECT_EQ(kCamera.rayDirection(400, 300), (Vec3{0, 0, -1}));
    const Vec3 onRay = kCamera.project(kCamera.eye() + kCamera.rayDirection(700, 50) * 500.0);
    expectNear({onRay.x, onRay.y, 0}, {700, 50, 0}, 1e-9);
}

TEST(DepthRange, CoversEveryVisibleSphereInFrontOfTheEye) {
    Scene scene;
    const Vec3 eye{0, 0, 500};
    // One range kept along the changes below, each time equal to one made afresh.
    SceneDepthRange kept;
    const auto rangeOf = [&](const Scene& of) {
        const DepthRange fresh = SceneDepthRange().of(of, eye);
        EXPECT_EQ(kept.of(of, eye), fresh);
        return fresh;
    };
    EXPECT_EQ(rangeOf(scene), DepthRange{}); // nothing to cover

    addSphere(scene, {0, 0, 0}, 24);
    addSphere(scene, {300, -40, -300}, 50);
    addSphere(scene, {0, 0, -5000}, 10, true); // hidden: ignored
    addSphere(scene, {0, 0, 900}, 10);         // behind the eye: ignored
    const DepthRange range = rangeOf(scene);
    EXPECT_LE(range.zNear, 476.0);
    EXPECT_GT(range.zNear, 450.0);
    EXPECT_GE(range.zFar, 850.0);
    EXPECT_LT(range.zFar, 900.0);

    // Sideways moves leave the range alone, so a drag never changes the depth scale.
    const auto nearest = scene.rootNode().children().front();
    nearest->setPosition({-250, 120, 0});
    EXPECT_EQ(rangeOf(scene), range);
    // The spheres that set the range grow, shrink and go: the range follows.
    nearest->setSphere(Sphere{100, std::nullopt});
    EXPECT_LT(rangeOf(scene).zNear, range.zNear);
    // Many changes of the nearest sphere, each looked at: the range drops what it has
    // outgrown, however often that comes to the top.
    for (int step = 0; step < 150; ++step) {
        nearest->setPosition({0, 0, step % 2 == 0 ? 40.0 : -40.0});
        rangeOf(scene);
    }
    nearest->setHidden(true);
    EXPECT_GT(rangeOf(scene).zNear, range.zNear);
    (*std::next(scene.rootNode().children().begin()))->removeFromParentNode();
    EXPECT_EQ(rangeOf(scene), DepthRange{});

    // A sphere around the eye keeps the near plane in front of it.
    Scene around;
    addSphere(around, {0, 0, 480}, 40);
    EXPECT_GT(rangeOf(around).zNear, 0.0);
}

} // namespace
} // namespace orrery
