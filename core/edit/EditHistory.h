#pragma once

#include "core/model/PlanetList.h"
#include "core/scene/SceneView.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// Undo and redo for every change of the planet list and the scene it drives. A step keeps
// what it changed both ways: the records (replaced, inserted or removed at an index), the
// planets' scene nodes as captured before and after, the camera and the light. Undoing
// puts back exactly what was there, nodes included, so a hidden planet that an edit showed
// is hidden again.
namespace orrery {

enum class EditKind { cell, drag, create, remove, showAll, camera, light };

struct RecordChange {
    std::size_t index = 0;
    std::optional<PlanetRecord> before; // none: the record was inserted
    std::optional<PlanetRecord> after;  // none: the record was removed
};

struct PlanetNodesChange {
    std::string tsecs;
    std::vector<CapturedNode> before;
    std::vector<CapturedNode> after;
};

struct EditStep {
    EditKind kind = EditKind::cell;
    std::vector<RecordChange> records;
    std::vector<PlanetNodesChange> nodes;
    std::optional<std::pair<CameraState, CameraState>> camera;
    std::optional<std::pair<LightState, LightState>> light;
    // Steps with the same key, recorded one after another, are one step for the user: a
    // whole drag, or the keystrokes of one field. 0 never merges.
    int mergeKey = 0;
};

class EditHistory {
public:
    // Keeps the step as the newest one (or folds it into the newest when their merge keys
    // match) and forgets whatever could have been redone.
    void record(EditStep step);
    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < steps_.size(); }
    // The kind of step the next undo or redo would take back or do again.
    std::optional<EditKind> undoKind() const;
    std::optional<EditKind> redoKind() const;
    // Each answers the step it applied, or none when there was nothing to apply.
    const EditStep* undo(PlanetList& planets, SceneView& scene);
    const EditStep* redo(PlanetList& planets, SceneView& scene);
    void clear();

    // Grows with every change of the history (a step recorded, undone or redone, or the
    // history cleared), so that the window can tell whether the system changed since it
    // was last saved.
    std::uint64_t revision() const { return revision_; }
    // Called after every such change.
    void setChangeHandler(std::function<void()> handler) { changed_ = std::move(handler); }

private:
    std::vector<EditStep> steps_;
    std::size_t done_ = 0; // steps_[0, done_) are done
    std::uint64_t revision_ = 0;
    std::function<void()> changed_;

    void touch();
};

} // namespace orrery
