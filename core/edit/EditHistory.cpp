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
    if (newer.document)
        older.document = {older.document ? older.document->first : newer.document->first,
                          newer.document->second};
}

template <typename Value> bool unchanged(const std::optional<std::pair<Value, Value>>& change) {
    return !change || change->first == change->second;
}

// A step that leaves the system as it found it. The nodes follow the records and are not
// asked: a planet's nodes may be drawn anew without any change to the system.
bool changesNothing(const EditStep& step) {
    return std::all_of(step.records.begin(), step.records.end(),
                       [](const RecordChange& c) { return c.before == c.after; }) &&
           unchanged(step.camera) && unchanged(step.light) && unchanged(step.document);
}

} // namespace

void EditHistory::touch() {
    if (changed_)
        changed_();
}

void EditHistory::record(EditStep step) {
    const bool merges = step.mergeKey != 0 && done_ > 0 && clean_ != done_ &&
                        steps_[done_ - 1].mergeKey == step.mergeKey;
    if (!merges && changesNothing(step))
        return;
    // The saved state among the steps about to be forgotten can never come back.
    if (clean_ != kNoClean && clean_ > done_)
        clean_ = kNoClean;
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    if (merges) {
        fold(steps_.back(), std::move(step));
        if (changesNothing(steps_.back()))
            steps_.pop_back();
    } else {
        steps_.push_back(std::move(step));
    }
    done_ = steps_.size();
    touch();
}

namespace {

// Takes a step back (undo) or does it again: the records in reverse order going back, so
// that indices mean what they meant when the step was taken.
void applyStep(const EditStep& step, bool forward, PlanetList& planets, SceneView& scene,
               DocumentSettings& document) {
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
    if (step.document)
        document = forward ? step.document->second : step.document->first;
}

} // namespace

const EditStep* EditHistory::undo(PlanetList& planets, SceneView& scene,
                                  DocumentSettings& document) {
    if (!canUndo())
        return nullptr;
    const EditStep& step = steps_[--done_];
    applyStep(step, false, planets, scene, document);
    touch();
    return &step;
}

const EditStep* EditHistory::redo(PlanetList& planets, SceneView& scene,
                                  DocumentSettings& document) {
    if (!canRedo())
        return nullptr;
    const EditStep& step = steps_[done_++];
    applyStep(step, true, planets, scene, document);
    touch();
    return &step;
}

void EditHistory::clear() {
    steps_.clear();
    done_ = 0;
    clean_ = 0;
    touch();
}

void EditHistory::setClean() {
    clean_ = done_;
    touch();
}

} // namespace orrery
