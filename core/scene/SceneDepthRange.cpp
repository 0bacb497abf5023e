#include "core/scene/SceneDepthRange.h"

#include <algorithm>
#include <cmath>

namespace orrery {
namespace {

// Margins so that the nearest and farthest sphere points never sit exactly on a plane,
// where rounding would clip them.
constexpr double kRangeMargin = 0.01;
// The near plane never comes closer than this fraction of the far distance, which keeps
// depth-buffer precision when a sphere reaches the eye.
constexpr double kMinNearFraction = 1e-4;

} // namespace

DepthRange SceneDepthRange::of(const Scene& scene, Vec3 eye) {
    const SceneNode& root = scene.rootNode();
    const bool same = kept_ && scene.id() == sceneId_ && eye == eye_;
    const auto changes = same ? scene.changesSince(revision_) : std::nullopt;
    if (changes) {
        // Each listed planet as it stands now; the log lists only children of the root.
        for (const SceneChange& change : *changes) {
            remove(change.key);
            const auto node = change.node.lock();
            if (node && node->parent() == &root && !node->isHidden())
                add(*node, root.position() + node->position());
        }
    } else {
        reaches_.clear();
        nearest_.clear();
        farthest_.clear();
        eye_ = eye;
        rebuild(root, root.position());
    }
    kept_ = true;
    sceneId_ = scene.id();
    revision_ = scene.revision();

    if (farthest_.empty() || !(*farthest_.rbegin() > 0.0) || !std::isfinite(*farthest_.rbegin()) ||
        !std::isfinite(*nearest_.begin()))
        return DepthRange{};
    const double zFar = *farthest_.rbegin() * (1.0 + kRangeMargin);
    const double zNear =
        std::max(*nearest_.begin() * (1.0 - kRangeMargin), zFar * kMinNearFraction);
    return DepthRange{zNear, zFar};
}

void SceneDepthRange::rebuild(const SceneNode& node, Vec3 origin) {
    for (const auto& child : node.children()) {
        if (child->isHidden())
            continue;
        const Vec3 world = origin + child->position();
        add(*child, world);
        rebuild(*child, world);
    }
}

void SceneDepthRange::add(const SceneNode& node, Vec3 world) {
    const auto& sphere = node.sphere();
    if (!sphere || !(sphere->radius > 0.0))
        return;
    const double distance = eye_.z - world.z;
    if (!(distance + sphere->radius > 0.0))
        return;
    const Reach reach{distance - sphere->radius, distance + sphere->radius};
    if (std::isnan(reach.nearest) || std::isnan(reach.farthest)) // no place in an order
        return;
    reaches_[&node] = reach;
    nearest_.insert(reach.nearest);
    farthest_.insert(reach.farthest);
}

void SceneDepthRange::remove(const SceneNode* node) {
    const auto found = reaches_.find(node);
    if (found == reaches_.end())
        return;
    nearest_.erase(nearest_.find(found->second.nearest));
    farthest_.erase(farthest_.find(found->second.farthest));
    reaches_.erase(found);
}

} // namespace orrery
