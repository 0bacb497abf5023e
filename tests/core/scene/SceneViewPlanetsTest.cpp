#include "core/scene/PlanetNodes.h"
#include "core/scene/SceneDepthRange.h"
#include "core/scene/SceneView.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <variant>

namespace orrery {
namespace {

constexpr Color kRed{1.0, 0.0, 0.0, 1.0};

std::vector<std::string> childNames(const SceneView& view) {
    std::vector<std::string> names;
    for (const auto& child : view.scene().rootNode().children())
        names.push_back(child->name());
    return names;
}

const SceneNode& onlyNode(const SceneView& view, const std::string& name) {
    const auto nodes = view.scene().rootNode().childNodesNamed(name);
    EXPECT_EQ(nodes.size(), 1u) << name;
    return *nodes.at(0);
}

TEST(PlanetNodes, MaterialRules) {
    // No surface: no material at all, whatever the style.
    EXPECT_FALSE(planetMaterial(kRed, 7, 0, 24.0f).has_value());
    EXPECT_FALSE(planetMaterial(kRed, 0, -3, 24.0f).has_value());

    const auto coloured = planetMaterial(kRed, 0, 3, 24.0f);
    ASSERT_TRUE(coloured.has_value());
    EXPECT_EQ(std::get<Color>(coloured->diffuse), kRed);
    EXPECT_EQ(coloured->emission, "Surface003");

    EXPECT_EQ(planetMaterial(kRed, 0, 48, 24.0f)->emission, "Surface048");
    EXPECT_EQ(planetMaterial(kRed, 0, 1000, 24.0f)->emission, "Surface1000");

    // A styled planet's gradient side comes from the single-precision radius, widened
    // before multiplying.
    const auto styled = planetMaterial(kRed, 5, 12, 0.1f);
    ASSERT_TRUE(styled.has_value());
    const auto& gradient = std::get<GradientTexture>(styled->diffuse);
    EXPECT_EQ(gradient.style, 5);
    EXPECT_EQ(gradient.width, static_cast<double>(0.1f) * 6.283185307179586);
    EXPECT_EQ(gradient.height, gradient.width);
    EXPECT_EQ(gradient.angle, 270.0);
    EXPECT_EQ(styled->emission, "Surface012");
}

TEST(SceneViewPlanets, CreatePlanetReadsItsTexts_CreatePlanet2AppliesTheMaterialRules) {
    SceneView view;
    view.createPlanet("1", "  12abc", "abc", "0.1", "24");
    view.createPlanet("2", "0", "0", "0", "-");
    view.createPlanet2("3", kRed, 7, 0, "0", "0", "0", "24");
    view.createPlanet2("4", kRed, 5, 12, "1", "2", "3", "10");
    const SceneNode& plain = onlyNode(view, "planet1");
    // Texts are read as leading single-precision numbers.
    EXPECT_EQ(plain.position(), (Vec3{12, 0, static_cast<double>(0.1f)}));
    ASSERT_TRUE(plain.sphere().has_value());
    EXPECT_EQ(plain.sphere()->radius, 24.0);
    EXPECT_FALSE(plain.sphere()->material.has_value());
    EXPECT_FALSE(plain.isHidden());
    EXPECT_EQ(onlyNode(view, "planet2").sphere()->radius, 0.0);
    EXPECT_FALSE(onlyNode(view, "planet3").sphere()->material.has_value());
    const SceneNode& styled = onlyNode(view, "planet4");
    EXPECT_EQ(styled.sphere()->material, planetMaterial(kRed, 5, 12, 10.0f));
    EXPECT_EQ(styled.position(), (Vec3{1, 2, 3}));
    // Appended after the camera and the light, in order.
    EXPECT_EQ(childNames(view),
              (std::vector<std::string>{"", "light", "planet1", "planet2", "planet3", "planet4"}));
}

TEST(SceneViewPlanets, SameNameNodesAreAlwaysTreatedTogether) {
    SceneView view;
    view.createPlanet("7", "0", "0", "0", "24");
    view.createPlanet("7", "5", "0", "0", "24");
    view.createPlanet("77", "0", "0", "0", "24");
    view.updateStatus("77", 0);
    view.updateStatus("77", 2); // only state 0 hides
    view.updateStatus("7", 0);
    for (const auto& node : view.scene().rootNode().childNodesNamed("planet7"))
        EXPECT_TRUE(node->isHidden());
    EXPECT_FALSE(onlyNode(view, "planet77").isHidden());

    view.updatePlanet("7", kRed, 0, 2, "9", "9", "9", "3");
    const auto updated = view.scene().rootNode().childNodesNamed("planet7");
    ASSERT_EQ(updated.size(), 2u);
    for (const auto& node : updated) {
        EXPECT_EQ(node->position(), (Vec3{9, 9, 9}));
        EXPECT_FALSE(node->isHidden()); // replacing shows the planet again
    }
    // The new nodes went to the end, after the untouched planet.
    EXPECT_EQ(childNames(view),
              (std::vector<std::string>{"", "light", "planet77", "planet7", "planet7"}));

    view.deletePlanet("7");
    EXPECT_EQ(childNames(view), (std::vector<std::string>{"", "light", "planet77"}));
}

// Opening and New exchange all planets at once: camera and light stay wherever they are, the
// new nodes are found by name in batch order, and the old ones come back detached, free to be
// put back (as an undo does) or freed elsewhere.
TEST(SceneViewPlanets, ReplacingAllPlanetsKeepsCameraAndLightAndDetachesTheOld) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    view.updateLightColor(kRed); // the light now comes after the planet
    view.createPlanet("2", "0", "0", "0", "24");
    const std::uint64_t before = view.scene().revision();

    SceneNodeBatch incoming;
    for (const char* tsecs : {"5", "6", "5"})
        incoming.append(makePlanetNode(tsecs, kRed, 0, 1, "1", "2", "3", "4"));
    const SceneNodeBatch old = view.replacePlanets(std::move(incoming));

    EXPECT_EQ(childNames(view),
              (std::vector<std::string>{"", "light", "planet5", "planet6", "planet5"}));
    const auto fives = view.scene().rootNode().childNodesNamed("planet5");
    ASSERT_EQ(fives.size(), 2u);
    EXPECT_LT(fives[0]->siblingOrder(), fives[1]->siblingOrder());
    EXPECT_EQ(fives[0]->worldPosition(), (Vec3{1, 2, 3}));
    EXPECT_FALSE(view.scene().changesSince(before)); // one change the log cannot name

    ASSERT_EQ(old.size(), 2u);
    for (const auto& node : old.nodes())
        EXPECT_EQ(node->parent(), nullptr);
    Scene other;
    other.rootNode().addChildNode(old.nodes().front());
    EXPECT_EQ(other.rootNode().childNodesNamed("planet1").size(), 1u);

    EXPECT_EQ(view.replacePlanets({}).size(), 3u);
    EXPECT_EQ(childNames(view), (std::vector<std::string>{"", "light"}));
    EXPECT_FALSE(view.hasPlanets());
}

TEST(SceneViewPlanets, UnknownTsecsChangesNothing_AndCameraAndLightNeverMatch) {
    SceneView view;
    view.createPlanet("1", "0", "0", "0", "24");
    const auto before = view.scene().revision();
    view.updatePlanet("2", kRed, 0, 1, "0", "0", "0", "1");
    view.updateStatus("2", 0);
    view.deletePlanet("2");
    view.deletePlanet("");      // "planet" names no node: the camera has no name
    view.deletePlanet("light"); // "planetlight" is not "light"
    EXPECT_EQ(view.scene().revision(), before);
    EXPECT_EQ(view.scene().rootNode().childCount(), 3u);
}

TEST(SceneViewPlanets, EveryChangeAsksForARedraw) {
    SceneView view;
    int redraws = 0;
    view.setNeedsDisplayHandler([&] { ++redraws; });
    view.createPlanet("1", "0", "0", "0", "24");
    EXPECT_EQ(redraws, 1);
    view.createPlanet2("2", kRed, 1, 1, "0", "0", "0", "24");
    EXPECT_EQ(redraws, 2);
    view.updatePlanet("1", kRed, 1, 1, "0", "0", "0", "24");
    EXPECT_EQ(redraws, 3);
    view.updateStatus("1", 0);
    EXPECT_EQ(redraws, 4);
    view.deletePlanet("1");
    EXPECT_EQ(redraws, 5);
    view.updateCamera(45, 45, 0, 0, 400, true, true);
    view.updateLight("1", "2", "3");
    view.updateLightColor(kRed);
    EXPECT_EQ(redraws, 8);
}

// A depth range worked out with a batch (on the worker that reads a package) serves the scene
// that takes the batch in, and follows the scene's later changes; one worked out for another
// eye than the camera's is left aside.
TEST(SceneViewPlanets, ADepthRangePreparedWithTheBatchServesTheSceneThatTakesItIn) {
    const auto batch = [](std::optional<Vec3> eye) {
        SceneNodeBatch nodes;
        nodes.append(makePlanetNode("1", kRed, 0, 1, "0", "0", "0", "24"));
        nodes.append(makePlanetNode("2", kRed, 0, 1, "10", "0", "-300", "50"));
        if (eye)
            nodes.setDepthRange(
                std::make_shared<SceneDepthRange>(SceneDepthRange::prepared(nodes, {}, *eye)));
        return nodes;
    };
    for (const double eyeZ : {500.0, 800.0}) {
        SceneView prepared; // the camera stands at z 500
        SceneView worked;
        prepared.replacePlanets(batch(Vec3{0, 0, eyeZ}));
        worked.replacePlanets(batch(std::nullopt));
        EXPECT_EQ(prepared.projection(800, 600).matrix(), worked.projection(800, 600).matrix());
        for (SceneView* view : {&prepared, &worked})
            view->updatePlanet("2", kRed, 0, 1, "10", "0", "-900", "50");
        EXPECT_EQ(prepared.projection(800, 600).matrix(), worked.projection(800, 600).matrix());
    }
}

} // namespace
} // namespace orrery
