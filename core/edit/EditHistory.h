#pragma once

#include "core/edit/DocumentSettings.h"
#include "core/model/PlanetList.h"
#include "core/scene/SceneView.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// Undo and redo for every change of the system: the planet list and the scene it drives,
// the camera, the light, the picture's size and background. A step keeps what it changed
// both ways: the records (replaced, inserted or removed at an index), the planets' scene
// nodes as captured before and after, the camera, the light and the document settings.
// Undoing puts back exactly what was there, nodes included, so a hidden planet that an edit
// showed is hidden again.
//
// The history also keeps the clean mark, as an undo stack does: the point in it where the
// system was last saved. The system is modified exactly when the history stands elsewhere,
// so an edit followed by its undo is unmodified again.
namespace orrery {

enum class EditKind { cell, drag, create, remove, showAll, camera, light, background, size };

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
    PlanetKey cell = PlanetKey::name; // the edited key of a cell step
    std::vector<RecordChange> records{};
    std::vector<PlanetNodesChange> nodes{};
    std::optional<std::pair<CameraState, CameraState>> camera{};
    std::optional<std::pair<LightState, LightState>> light{};
    std::optional<std::pair<DocumentSettings, DocumentSettings>> document{};
    // Steps with the same key, recorded one after another, are one step for the user: a
    // whole drag, or the keystrokes of one field. 0 never merges.
    int mergeKey = 0;
};

class EditHistory {
public:
    // Keeps the step as the newest one (or folds it into the newest when their merge keys
    // match) and forgets whatever could have been redone. A step that changes nothing of the
    // system (the same records, camera, light and settings before and after) is not kept,
    // and a fold that leaves the newest step changing nothing takes that step away.
    void record(EditStep step);
    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < steps_.size(); }
    // The step the next undo or redo would take back or do again, or null.
    const EditStep* nextUndo() const { return canUndo() ? &steps_[done_ - 1] : nullptr; }
    const EditStep* nextRedo() const { return canRedo() ? &steps_[done_] : nullptr; }
    // Each answers the step it applied, or none when there was nothing to apply.
    const EditStep* undo(PlanetList& planets, SceneView& scene, DocumentSettings& document);
    const EditStep* redo(PlanetList& planets, SceneView& scene, DocumentSettings& document);
    // Forgets every step; the system as it is now is clean.
    void clear();

    // The system as it is now is the saved one.
    void setClean();
    bool isClean() const { return clean_ == done_; }

    // Called after every change of the history or of its clean mark.
    void setChangeHandler(std::function<void()> handler) { changed_ = std::move(handler); }

private:
    static constexpr std::size_t kNoClean = static_cast<std::size_t>(-1);

    std::vector<EditStep> steps_;
    std::size_t done_ = 0;  // steps_[0, done_) are done
    std::size_t clean_ = 0; // done_ when last saved; kNoClean once that state is unreachable
    std::function<void()> changed_;

    void touch();
};

} // namespace orrery
