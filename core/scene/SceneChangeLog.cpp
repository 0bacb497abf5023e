#include "core/scene/SceneChangeLog.h"

#include "core/scene/SceneNode.h"

#include <algorithm>

namespace orrery {

void SceneChangeLog::record(std::uint64_t revision, const SceneNode& node) {
    if (entries_.size() == kCapacity) {
        reachesBackTo_ = entries_.front().revision;
        entries_.pop_front();
    }
    entries_.push_back({revision, {&node, node.weak_from_this()}});
}

void SceneChangeLog::breakAt(std::uint64_t revision) {
    entries_.clear();
    reachesBackTo_ = revision;
}

std::optional<std::vector<SceneChange>> SceneChangeLog::changesSince(std::uint64_t revision) const {
    if (revision < reachesBackTo_)
        return std::nullopt;
    const auto first = std::upper_bound(
        entries_.begin(), entries_.end(), revision,
        [](std::uint64_t since, const Entry& entry) { return since < entry.revision; });
    std::vector<SceneChange> changes;
    changes.reserve(static_cast<std::size_t>(entries_.end() - first));
    for (auto entry = first; entry != entries_.end(); ++entry)
        changes.push_back(entry->change);
    return changes;
}

} // namespace orrery
