#pragma once

#include "core/edit/EditHistory.h"
#include "core/model/PlanetList.h"
#include "core/scene/SceneView.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Every change a person makes to the system, from the table, the scene, the creation
// sheet, the popovers and the document's size and background: each is checked, turned into
// new planet records and the matching scene call, and recorded for undo. A change that
// leaves the system as it was (Return on the same text, the same style chosen again) is
// not recorded. The window only shows what comes of it.
namespace orrery {

enum class CellOutcome {
    refused, // the value failed its check: nothing is stored (the status label shows)
    noRow,   // no row is selected: nothing happens
    stored,
};

class SystemEditor {
public:
    SystemEditor(PlanetList& planets, SceneView& scene) : planets_(planets), scene_(scene) {}

    // Table cells of the selected row. Text cells are "name", "xvalue", "yvalue", "zvalue"
    // and "radius", each with its own check; the value is stored exactly as typed.
    CellOutcome editText(std::optional<std::size_t> row, PlanetKey key, std::string_view text);
    // "styleindex" or "surfaceindex", stored as decimal text.
    CellOutcome editIndex(std::optional<std::size_t> row, PlanetKey key, long index);
    CellOutcome editColor(std::optional<std::size_t> row, Color color);
    // Shows or hides the planet's nodes; the record keeps "1" or "0".
    CellOutcome editState(std::optional<std::size_t> row, int state);

    // A click in the scene: the last row with that tsecs, none for "0" or no match. It also
    // marks the start of a drag, so that a whole drag is one step to undo.
    std::optional<std::size_t> planetClicked(std::string_view tsecs);
    // A drag step: writes the position into the first row with that tsecs (the scene has
    // already moved its nodes) and answers that row; none when no row matches.
    std::optional<std::size_t> planetDragged(std::string_view tsecs, std::string x, std::string y,
                                             std::string z);

    // A new planet named as typed, appended as the last row, and its node.
    std::size_t createPlanet(std::string tsecs, std::string name);
    // Planets with their own values (and identities), appended as the last rows with their
    // nodes: one step to undo, however many.
    void appendPlanets(const std::vector<PlanetRecord>& planets);
    // Removes the row's record and every node with its tsecs; false without a row.
    bool deletePlanet(std::optional<std::size_t> row);
    // Every record's state "1" or "0", every planet shown or hidden.
    void showAll(bool shown);

    // The camera and the light as the popovers set them. Changes with the same non-zero
    // merge key, one after another, undo as one.
    void setCamera(double xFov, double yFov, double x, double y, double z, bool orthographic,
                   bool zRange, int mergeKey = 0);
    void setLightPosition(std::string_view x, std::string_view y, std::string_view z,
                          int mergeKey = 0);
    void setLightColor(Color color);
    // Both back to where they start; each one step of its own.
    void setCameraDefault();
    void setLightDefault();

    // The picture's size and background. Sizes come already checked; steps with the same
    // non-zero merge key, one after another, undo as one (a resize of the window by hand).
    const DocumentSettings& document() const { return document_; }
    void setBackground(long index);
    void setDocumentSize(std::string width, std::string height, int mergeKey = 0);
    // A system opened, cleared or started: its settings, with nothing to undo.
    void resetDocument(DocumentSettings settings) { document_ = std::move(settings); }

    EditHistory& history() { return history_; }
    const EditStep* undo() { return history_.undo(planets_, scene_, document_); }
    const EditStep* redo() { return history_.redo(planets_, scene_, document_); }

private:
    // Replaces record `row` by `record`, runs the scene call, and records both as a step.
    template <typename SceneCall>
    void replaceRecord(std::size_t row, PlanetRecord record, PlanetKey key, SceneCall&& sceneCall);
    void recordDocument(const DocumentSettings& before, EditKind kind, int mergeKey);
    void updatePlanetNode(const PlanetRecord& record);
    void recordLight(const LightState& before, int mergeKey);

    PlanetList& planets_;
    SceneView& scene_;
    EditHistory history_;
    DocumentSettings document_;
    // The dragged planet's nodes as they were at the press that started the drag.
    std::string dragTsecs_;
    std::vector<CapturedNode> dragStart_;
    int dragKey_ = 0;
    int nextDragKey_ = -1; // negative, so drags never share a key with the window's fields
};

} // namespace orrery
