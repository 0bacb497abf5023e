#include "core/edit/EditHistory.h"

#include <algorithm>

namespace orrery {
namespace {

void applyRecord(PlanetList& planets, std::size_t index, const std::optional<PlanetRecord>& from,
                 const std::optional<PlanetRecord>& to) {
    if (from && to)
        planets.replace(index, *to);
    else if (to)
        planets.insert(index, *to);
    else if (from)
        planets.remove(index);
}

// Folds a newer step of the same gesture into an older one: the older "before" stays, the
// newer "after" wins.
void fold(EditStep& older, EditStep&& newer) {
    for (RecordChange& change : newer.records) {
        auto same = std::find_if(older.records.begin(), older.records.end(),
                                 [&](const RecordChange& c) { return c.index == change.index; });
        if (same != older.records.end())
            same->after = std::move(change.after);
        else
            older.records.push_back(std::move(change));
    }
    for (PlanetNodesChange& change : newer.nodes) {
        auto same =
            std::find_if(older.nodes.begin(), older.nodes.end(),
                         [&](const PlanetNodesChange& c) { return c.tsecs == change.tsecs; });
        if (same != older.nodes.end())
            same->after = std::move(change.after);
        else
            older.nodes.push_back(std::move(change));
    }
    if (newer.camera)
        older.camera = {older.camera ? older.camera->first : newer.camera->first,
                        newer.camera->second};
    if (newer.light)
        older.light = {older.light ? older.light->first : newer.light->first, newer.light->second};
}

} // namespace

void EditHistory::touch() {
    ++revision_;
    if (changed_)
        changed_();
}

void EditHistory::record(EditStep step) {
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    if (step.mergeKey != 0 && !steps_.empty() && steps_.back().mergeKey == step.mergeKey)
        fold(steps_.back(), std::move(step));
    else
        steps_.push_back(std::move(step));
    done_ = steps_.size();
    touch();
}

std::optional<EditKind> EditHistory::undoKind() const {
    return canUndo() ? std::optional(steps_[done_ - 1].kind) : std::nullopt;
}

std::optional<EditKind> EditHistory::redoKind() const {
    return canRedo() ? std::optional(steps_[done_].kind) : std::nullopt;
}

namespace {

// Takes a step back (undo) or does it again: the records in reverse order going back, so
// that indices mean what they meant when the step was taken.
void applyStep(const EditStep& step, bool forward, PlanetList& planets, SceneView& scene) {
    const auto from = [forward](const auto& change) -> const auto& {
        return forward ? change.before : change.after;
    };
    const auto to = [forward](const auto& change) -> const auto& {
        return forward ? change.after : change.before;
    };
    if (forward) {
        for (const RecordChange& change : step.records)
            applyRecord(planets, change.index, from(change), to(change));
        for (const PlanetNodesChange& change : step.nodes)
            scene.restorePlanet(change.tsecs, to(change));
    } else {
        for (auto change = step.records.rbegin(); change != step.records.rend(); ++change)
            applyRecord(planets, change->index, from(*change), to(*change));
        for (auto change = step.nodes.rbegin(); change != step.nodes.rend(); ++change)
            scene.restorePlanet(change->tsecs, to(*change));
    }
    if (step.camera)
        scene.setCameraState(forward ? step.camera->second : step.camera->first);
    if (step.light)
        scene.setLightState(forward ? step.light->second : step.light->first);
}

} // namespace

const EditStep* EditHistory::undo(PlanetList& planets, SceneView& scene) {
    if (!canUndo())
        return nullptr;
    const EditStep& step = steps_[--done_];
    applyStep(step, false, planets, scene);
    touch();
    return &step;
}

const EditStep* EditHistory::redo(PlanetList& planets, SceneView& scene) {
    if (!canRedo())
        return nullptr;
    const EditStep& step = steps_[done_++];
    applyStep(step, true, planets, scene);
    touch();
    return &step;
}

void EditHistory::clear() {
    steps_.clear();
    done_ = 0;
    touch();
}

} // namespace orrery
