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
    Scene() : root_(SceneNode::create()), id_(nextId()) {}
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    SceneNode& rootNode() { return *root_; }
    const SceneNode& rootNode() const { return *root_; }

    // Changes with every change anywhere in the scene (see SceneNode::revision).
    std::uint64_t revision() const { return root_->revision(); }
    // Unique among the scenes of the process, so that a cache keyed by scene and revision
    // never mistakes a new scene at an old address for the old one.
    std::uint64_t id() const { return id_; }

private:
    static std::uint64_t nextId() {
        static std::atomic<std::uint64_t> counter{0};
        return ++counter;
    }

    std::shared_ptr<SceneNode> root_;
    std::uint64_t id_;
};

} // namespace orrery
