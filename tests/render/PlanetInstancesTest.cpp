#include "render/PlanetInstances.h"
#include "core/scene/PlanetNodes.h"
#include "core/scene/SceneView.h"

#include <gtest/gtest.h>

namespace orrery::render {
namespace {

constexpr Color kRed{1.0, 0.0, 0.0, 1.0};

std::vector<PlanetInstance> instancesOf(const SceneView& view,
                                        std::vector<std::string>* asked = nullptr) {
    std::vector<PlanetInstance> instances;
    std::vector<PlanetOrigin> origins;
    collectPlanetInstances(
        view.scene().rootNode(), view.cameraNode().position(),
        [asked](const std::string& name) {
            if (asked != nullptr)
                asked->push_back(name);
            return name == "Surface003" ? 5 : -1;
        },
        instances, origins);
    return instances;
}

TEST(PlanetInstances, OnePerDrawableSphere_RelativeToTheEye) {
    SceneView view;
    view.createPlanet("1", "10", "20", "30", "24");
    view.createPlanet("2", "0", "0", "0", "0");  // radius 0 draws nothing
    view.createPlanet("3", "0", "0", "0", "-4"); // nor does a negative one
    view.createPlanet("4", "0", "0", "0", "5");
    view.updateStatus("4", 0);
    view.createPlanet("5", "-1", "0", "0", "2.5");
    const auto instances = instancesOf(view);
    ASSERT_EQ(instances.size(), 2u);
    EXPECT_EQ(instances[1].center[0], 10.0f);
    EXPECT_EQ(instances[1].center[1], 20.0f);
    EXPECT_EQ(instances[1].center[2], 30.0f - 500.0f);
    EXPECT_EQ(instances[1].radius, 24.0f);
    EXPECT_EQ(instances[0].center[0], -1.0f);
    EXPECT_EQ(instances[0].radius, 2.5f);
}

TEST(PlanetInstances, FarthestFirst_TiesInSceneOrder) {
    SceneView view;
    view.createPlanet("near", "0", "0", "100", "20");
    view.createPlanet("far", "0", "0", "-100", "60");
    view.createPlanet2("twinA", kRed, 0, 3, "50", "0", "0", "10");
    view.createPlanet("twinB", "50", "0", "0", "10");
    // A big sphere whose surface comes nearer than a small sphere's, though its centre is
    // farther away: the surface decides.
    view.createPlanet("big", "0", "0", "200", "200");   // centre 300 from the eye
    view.createPlanet("small", "226", "0", "420", "1"); // centre 240 from the eye
    view.createPlanet("around", "0", "0", "0", "600");  // holds the eye: nearest of all
    const auto instances = instancesOf(view);
    ASSERT_EQ(instances.size(), 7u);
    std::vector<std::string> order;
    for (const PlanetInstance& instance : instances)
        order.push_back(instance.radius == 60        ? "far"
                        : instance.radius == 20      ? "near"
                        : instance.radius == 200     ? "big"
                        : instance.radius == 1       ? "small"
                        : instance.radius == 600     ? "around"
                        : instance.surfaceLayer == 5 ? "twinA"
                                                     : "twinB");
    EXPECT_EQ(order, (std::vector<std::string>{"far", "twinA", "twinB", "near", "small", "big",
                                               "around"}));
}

TEST(PlanetInstances, MaterialsBecomeColourRampAndSurfaceLayer) {
    SceneView view;
    view.createPlanet("plain", "0", "0", "0", "1");
    view.createPlanet2("coloured", {0.25, 0.5, 0.75, 0.5}, 0, 3, "0", "0", "0", "1");
    view.createPlanet2("styled", kRed, 17, 4, "0", "0", "0", "1");
    view.createPlanet2("unknownStyle", kRed, 85, 3, "0", "0", "0", "1");
    std::vector<std::string> asked;
    const auto instances = instancesOf(view, &asked);
    ASSERT_EQ(instances.size(), 4u);

    const PlanetInstance& plain = instances[0];
    EXPECT_EQ(plain.color[0] + plain.color[1] + plain.color[2] + plain.color[3], 4.0f);
    EXPECT_EQ(plain.rampRow, -1.0f);
    EXPECT_EQ(plain.surfaceLayer, -1.0f);

    const PlanetInstance& coloured = instances[1];
    EXPECT_NEAR(coloured.color[1], 0.2140, 1e-4); // sRGB 0.5 in linear light
    EXPECT_EQ(coloured.color[3], 0.5f);
    EXPECT_EQ(coloured.rampRow, -1.0f);
    EXPECT_EQ(coloured.surfaceLayer, 5.0f);

    const PlanetInstance& styled = instances[2];
    EXPECT_EQ(styled.rampRow, 17.0f);
    EXPECT_EQ(styled.surfaceLayer, -1.0f); // no image for Surface004

    // A style without gradient paints a fully transparent texture.
    EXPECT_EQ(instances[3].rampRow, -1.0f);
    EXPECT_EQ(instances[3].color[3], 0.0f);

    EXPECT_EQ(asked, (std::vector<std::string>{"Surface003", "Surface004", "Surface003"}));
}

TEST(PlanetInstances, HiddenGroupsHideTheirChildren_PositionsAddUp) {
    Scene scene;
    auto group = SceneNode::create();
    group->setPosition({100, 0, 0});
    auto moon = SceneNode::create();
    moon->setPosition({5, 0, 0});
    moon->setSphere(Sphere{1.0, std::nullopt});
    group->addChildNode(moon);
    scene.rootNode().addChildNode(group);
    std::vector<PlanetInstance> instances;
    std::vector<PlanetOrigin> origins;
    const auto none = [](const std::string&) {
        return -1;
    };
    collectPlanetInstances(scene.rootNode(), {0, 0, 0}, none, instances, origins);
    ASSERT_EQ(instances.size(), 1u);
    EXPECT_EQ(instances[0].center[0], 105.0f);
    group->setHidden(true);
    collectPlanetInstances(scene.rootNode(), {0, 0, 0}, none, instances, origins);
    EXPECT_TRUE(instances.empty());
}

TEST(SceneLights, FirstVisibleLightWithItsColour) {
    SceneView view;
    view.updateLight("1", "2", "3");
    view.updateLightColor(kRed);
    auto light = findLight(view.scene().rootNode());
    ASSERT_TRUE(light.has_value());
    EXPECT_EQ(light->position, (Vec3{1, 2, 3}));
    EXPECT_EQ(light->color, kRed);

    Scene dark;
    auto hidden = SceneNode::create();
    hidden->setLight(Light{});
    hidden->setHidden(true);
    dark.rootNode().addChildNode(hidden);
    EXPECT_FALSE(findLight(dark.rootNode()).has_value());
}

} // namespace
} // namespace orrery::render
