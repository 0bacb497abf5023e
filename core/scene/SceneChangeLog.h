#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace orrery {

class SceneNode;

// A node that changed: `key` tells nodes apart (compare it, never follow it: the node may be
// gone), `node` reaches it while it lives.
struct SceneChange {
    const SceneNode* key = nullptr;
    std::weak_ptr<const SceneNode> node;
};

// The nodes that changed, revision by revision, so that whoever keeps something made from
// the scene (the renderer's planets) can bring it up to date by redoing only those nodes
// instead of the whole scene. Only the last kCapacity changes are kept; a change that the
// log cannot express as "this node" (see SceneNode) breaks it, and whoever asks about the
// time before starts over from the whole scene.
class SceneChangeLog {
public:
    static constexpr std::size_t kCapacity = 256;

    // The change that took the scene to `revision`, one more than the one before.
    void record(std::uint64_t revision, const SceneNode& node);
    void breakAt(std::uint64_t revision);

    // The changes after `revision`, oldest first, a node perhaps more than once; none when
    // the log does not reach back that far.
    std::optional<std::vector<SceneChange>> changesSince(std::uint64_t revision) const;

private:
    struct Entry {
        std::uint64_t revision = 0;
        SceneChange change;
    };
    std::deque<Entry> entries_;
    std::uint64_t reachesBackTo_ = 0; // the oldest revision changesSince can answer for
};

} // namespace orrery
