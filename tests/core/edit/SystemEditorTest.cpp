#include "core/edit/SystemEditor.h"
#include "core/scene/PlanetNodes.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

class SystemEditorTest : public ::testing::Test {
protected:
    // The planet's nodes as the picture shows them: (x, y, z, radius, hidden) per node.
    std::vector<std::tuple<double, double, double, double, bool>> nodes(const char* tsecs) {
        std::vector<std::tuple<double, double, double, double, bool>> found;
        for (const auto& node : scene.scene().rootNode().childNodesNamed(planetNodeName(tsecs)))
            found.emplace_back(node->position().x, node->position().y, node->position().z,
                               node->sphere()->radius, node->isHidden());
        return found;
    }

    PlanetList planets;
    SceneView scene;
    SystemEditor editor{planets, scene};
};

TEST_F(SystemEditorTest, CellValuesAreCheckedAndStoredAsTyped) {
    editor.createPlanet("100", "Earth");
    for (const char* refused : {"0.09", "0", "-1", "1e2"})
        EXPECT_EQ(editor.editText(0, PlanetKey::radius, refused), CellOutcome::refused) << refused;
    EXPECT_EQ(editor.editText(0, PlanetKey::xvalue, "12."), CellOutcome::refused);
    EXPECT_EQ(editor.editText(0, PlanetKey::name, "   "), CellOutcome::refused);
    EXPECT_EQ(planets.at(0), newPlanetRecord("100", "Earth"));

    EXPECT_EQ(editor.editText(0, PlanetKey::radius, "0.1"), CellOutcome::stored);
    EXPECT_EQ(editor.editText(0, PlanetKey::xvalue, "-12.5"), CellOutcome::stored);
    EXPECT_EQ(editor.editText(0, PlanetKey::name, " Io "), CellOutcome::stored);
    EXPECT_EQ(editor.editText(std::nullopt, PlanetKey::name, "Io"), CellOutcome::noRow);
    EXPECT_EQ(editor.editIndex(1, PlanetKey::styleindex, 3), CellOutcome::noRow);
    EXPECT_EQ(planets.at(0).xvalue, "-12.5");
    EXPECT_EQ(planets.at(0).name, " Io ");
    EXPECT_EQ(nodes("100"), (decltype(nodes("100")){{-12.5, 0, 0, 0.1f, false}}));
}

TEST_F(SystemEditorTest, NewPlanetsAreLastVisibleAtTheOriginAndUndoAsAWhole) {
    editor.createPlanet("100", "Earth");
    editor.createPlanet("200", "Moon");
    EXPECT_EQ(planets.at(1), newPlanetRecord("200", "Moon"));
    EXPECT_EQ(planets.at(1).color, kPureBlue);
    EXPECT_EQ(nodes("200"), (decltype(nodes("200")){{0, 0, 0, 24, false}}));

    ASSERT_NE(editor.undo(), nullptr);
    EXPECT_EQ(planets.size(), 1u);
    EXPECT_TRUE(nodes("200").empty());
    ASSERT_NE(editor.redo(), nullptr);
    EXPECT_EQ(planets.at(1).name, "Moon");
    EXPECT_EQ(nodes("200").size(), 1u);
}

TEST_F(SystemEditorTest, EditingAHiddenPlanetShowsItAndUndoHidesItAgain) {
    editor.createPlanet("100", "Earth");
    editor.editState(0, 0);
    EXPECT_EQ(planets.at(0).state, "0");
    EXPECT_TRUE(std::get<4>(nodes("100").at(0)));
    editor.editText(0, PlanetKey::radius, "30");
    EXPECT_EQ(planets.at(0).state, "0");
    EXPECT_FALSE(std::get<4>(nodes("100").at(0)));
    editor.undo();
    EXPECT_EQ(planets.at(0).radius, "24");
    EXPECT_TRUE(std::get<4>(nodes("100").at(0)));
    editor.undo();
    EXPECT_FALSE(std::get<4>(nodes("100").at(0)));
    EXPECT_EQ(planets.at(0).state, "1");
}

TEST_F(SystemEditorTest, AClickSelectsTheLastMatchADragMovesTheFirstAndUndoesAsOne) {
    editor.createPlanet("100", "first");
    editor.createPlanet("100", "second"); // made within the same second
    EXPECT_EQ(editor.planetClicked("100"), 1u);
    EXPECT_EQ(editor.planetClicked("0"), std::nullopt);

    editor.planetClicked("100");
    scene.mouseDown({480, 270});
    for (double x : {500.0, 520.0, 540.0}) {
        scene.setController({[](const std::string&) {},
                             [&](const std::string& tsecs, const std::string& px,
                                 const std::string& py, const std::string& pz) {
                                 EXPECT_EQ(editor.planetDragged(tsecs, px, py, pz), 0u);
                             }});
        scene.mouseDragged({x, 270});
    }
    scene.mouseUp();
    EXPECT_NE(planets.at(0).xvalue, "0");
    EXPECT_EQ(planets.at(1).xvalue, "0");
    EXPECT_EQ(planets.at(0).zvalue, "0");

    editor.undo(); // the whole drag
    EXPECT_EQ(planets.at(0).xvalue, "0");
    for (const auto& node : nodes("100"))
        EXPECT_EQ(std::get<0>(node), 0.0);
    EXPECT_EQ(editor.history().nextUndo()->kind, EditKind::create);
}

TEST_F(SystemEditorTest, DeletingAndShowingAllUndoRecordsAndNodes) {
    editor.createPlanet("100", "Earth");
    editor.createPlanet("100", "twin");
    editor.createPlanet("300", "Mars");
    EXPECT_FALSE(editor.deletePlanet(std::nullopt));
    EXPECT_TRUE(editor.deletePlanet(0));
    // Both nodes named with that tsecs go; only the selected record does.
    EXPECT_TRUE(nodes("100").empty());
    EXPECT_EQ(planets.size(), 2u);
    editor.undo();
    EXPECT_EQ(planets.at(0).name, "Earth");
    EXPECT_EQ(nodes("100").size(), 2u);

    editor.showAll(false);
    EXPECT_EQ(planets.at(2).state, "0");
    EXPECT_TRUE(std::get<4>(nodes("300").at(0)));
    editor.undo();
    EXPECT_EQ(planets.at(2).state, "1");
    EXPECT_FALSE(std::get<4>(nodes("300").at(0)));
}

TEST_F(SystemEditorTest, CameraAndLightChangesUndoAndOneFieldIsOneStep) {
    editor.setCamera(60, 45, 0, 0, 500, true, true, 7);
    editor.setCamera(60, 45, 10, 0, 500, true, true, 7);
    editor.setCamera(60, 45, 10, 0, 500, false, true, 8);
    EXPECT_EQ(scene.getCameraSettings(),
              (std::vector<std::string>{"60.0", "45.0", "10.000000", "0.000000", "500.000000", "0",
                                        "1"}));
    editor.undo();
    editor.undo();
    EXPECT_EQ(
        scene.getCameraSettings(),
        (std::vector<std::string>{"45.0", "45.0", "0.000000", "0.000000", "500.000000", "1", "1"}));

    editor.setLightColor({1, 0, 0, 1});
    editor.setLightPosition("5", "6", "7");
    editor.setLightDefault();
    EXPECT_EQ(scene.lightState(), (LightState{{0, 0, 100}, kWhite}));
    editor.undo();
    EXPECT_EQ(scene.lightState(), (LightState{{5, 6, 7}, {1, 0, 0, 1}}));
}

} // namespace
} // namespace orrery
