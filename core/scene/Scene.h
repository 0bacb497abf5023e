#pragma once

#include "core/scene/SceneNode.h"

#include <atomic>
#include <cstdint>
#include <memory>

namespace orrery {

// One scene: a root node that everything shown hangs from. The root is created with the
// scene and never replaced.
class Scene {
public:
    Scene() : root_(SceneNode::create()), id_(nextId()) { root_->changeLog_ = &changeLog_; }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    SceneNode& rootNode() { return *root_; }
    const SceneNode& rootNode() const { return *root_; }

    // Changes with every change anywhere in the scene (see SceneNode::revision).
    std::uint64_t revision() const { return root_->revision(); }
    // Unique among the scenes of the process, so that a cache keyed by scene and revision
    // never mistakes a new scene at an old address for the old one.
    std::uint64_t id() const { return id_; }

    // The planets that changed after `revision` (see SceneNode); none when the log does not
    // reach back that far, and the whole scene has to be looked at again.
    std::optional<std::vector<SceneChange>> changesSince(std::uint64_t revision) const {
        return changeLog_.changesSince(revision);
    }

private:
    static std::uint64_t nextId() {
        static std::atomic<std::uint64_t> counter{0};
        return ++counter;
    }

    SceneChangeLog changeLog_; // outlives the root, which points at it
    std::shared_ptr<SceneNode> root_;
    std::uint64_t id_;
};

} // namespace orrery
