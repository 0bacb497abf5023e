#include "core/edit/DocumentState.h"
#include "core/edit/HistoryView.h"
#include "core/edit/SystemEditor.h"

#include <gtest/gtest.h>

#include <functional>

namespace orrery {
namespace {

// One person's session, step by step, with the title and the undo item after each.
struct Step {
    const char* what;
    std::function<void(SystemEditor&, DocumentState&)> act;
    const char* title;
    const char* undoName; // the key of the step Undo would take back, "" for none
};

TEST(DocumentState, TheTitleAndUndoTellTheTruthAfterEveryStep) {
    PlanetList planets;
    SceneView scene;
    SystemEditor editor{planets, scene};
    DocumentState document{editor.history()};
    editor.createPlanet("100", "Earth");
    editor.history().clear();

    const Step steps[] = {
        {"start", [](auto&, auto&) {}, "Orrery", ""},
        {"radius", [](auto& e, auto&) { e.editText(0, PlanetKey::radius, "30"); }, "Orrery *",
         "stepRadius"},
        {"undo", [](auto& e, auto&) { e.undo(); }, "Orrery", ""},
        {"redo", [](auto& e, auto&) { e.redo(); }, "Orrery *", "stepRadius"},
        {"save as", [](auto&, auto& d) { d.saved("/home/me/Earth 2.0.kvx"); }, "Orrery: Earth 2.0",
         "stepRadius"},
        // An arrow key or Return in a cell commits the text it shows.
        {"same text", [](auto& e, auto&) { e.editText(0, PlanetKey::radius, "30"); },
         "Orrery: Earth 2.0", "stepRadius"},
        {"same style", [](auto& e, auto&) { e.editIndex(0, PlanetKey::styleindex, 0); },
         "Orrery: Earth 2.0", "stepRadius"},
        {"same colour", [](auto& e, auto&) { e.editColor(0, kPureBlue); }, "Orrery: Earth 2.0",
         "stepRadius"},
        {"same camera", [](auto& e, auto&) { e.setCamera(45, 45, 0, 0, 500, true, true); },
         "Orrery: Earth 2.0", "stepRadius"},
        {"same light", [](auto& e, auto&) { e.setLightPosition("0", "0", "100"); },
         "Orrery: Earth 2.0", "stepRadius"},
        {"background", [](auto& e, auto&) { e.setBackground(3); }, "Orrery: Earth 2.0 *",
         "stepBackground"},
        {"undo to the save", [](auto& e, auto&) { e.undo(); }, "Orrery: Earth 2.0", "stepRadius"},
        {"undo past the save", [](auto& e, auto&) { e.undo(); }, "Orrery: Earth 2.0 *", ""},
        // A new step here forgets the saved state: no undo or redo reaches it again.
        {"size", [](auto& e, auto&) { e.setDocumentSize("800", "600"); }, "Orrery: Earth 2.0 *",
         "stepSize"},
        {"undo the size", [](auto& e, auto&) { e.undo(); }, "Orrery: Earth 2.0 *", ""},
        // A failed save sets no mark: the window never reports it to the state.
        {"failed save", [](auto&, auto&) {}, "Orrery: Earth 2.0 *", ""},
        {"new", [](auto&, auto& d) { d.cleared(); }, "Orrery", ""},
        {"light",
         [](auto& e, auto&) {
             e.setLightColor({1, 0, 0, 1});
         },
         "Orrery *", "stepLight"},
        {"open", [](auto&, auto& d) { d.opened("/home/me/Mars.kvx"); }, "Orrery: Mars", ""},
    };
    for (const Step& step : steps) {
        step.act(editor, document);
        EXPECT_EQ(document.title("Orrery", "*"), step.title) << step.what;
        const EditStep* next = editor.history().nextUndo();
        EXPECT_EQ(next != nullptr ? stepNameKey(*next) : "", step.undoName) << step.what;
    }
    EXPECT_EQ(document.path(), "/home/me/Mars.kvx");
}

TEST(DocumentState, NewKeepsThePathForSaveButNamesNoPackageToTheQuestion) {
    EditHistory history;
    DocumentState document{history};
    EXPECT_EQ(document.package(), std::nullopt);
    document.opened("/tmp/Moon.kvx");
    EXPECT_EQ(document.package(), "/tmp/Moon.kvx");
    document.cleared();
    EXPECT_EQ(document.path(), "/tmp/Moon.kvx");
    EXPECT_EQ(document.package(), std::nullopt);
}

TEST(DocumentState, KeystrokesOfOneFieldFoldAndTypingBackToTheSavedValueIsClean) {
    PlanetList planets;
    SceneView scene;
    SystemEditor editor{planets, scene};
    DocumentState document{editor.history()};
    editor.setLightPosition("0", "0", "5", 1);
    document.saved("/tmp/a.kvx");
    // Keystrokes after a save start a step of their own, though the field is the same.
    editor.setLightPosition("0", "0", "50", 1);
    EXPECT_TRUE(document.isModified());
    editor.setLightPosition("0", "0", "5", 1);
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(editor.history().nextUndo()->kind, EditKind::light);
    editor.undo();
    EXPECT_EQ(scene.lightState().position, (Vec3{0, 0, 100}));
    EXPECT_TRUE(document.isModified());
}

TEST(HistoryView, TheShowAllBoxStandsAsItStoodOnEitherSideOfItsStep) {
    PlanetList planets;
    SceneView scene;
    SystemEditor editor{planets, scene};
    editor.createPlanet("100", "Earth");
    editor.editState(0, 0);
    editor.showAll(true);
    const EditStep& step = *editor.history().nextUndo();
    EXPECT_EQ(showAllBoxAfter(step, true), false);
    EXPECT_EQ(showAllBoxAfter(step, false), true);
    editor.undo();
    EXPECT_EQ(showAllBoxAfter(*editor.history().nextUndo(), true), std::nullopt);
}

} // namespace
} // namespace orrery
