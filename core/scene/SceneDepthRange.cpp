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
        const std::size_t keptNearest = nearest_.size();
        const std::size_t keptFarthest = farthest_.size();
        for (const SceneChange& change : *changes) {
            forget(change.key);
            const auto node = change.node.lock();
            if (node && node->parent() == &root && !node->isHidden())
                add(*node, root.position() + node->position(), true);
        }
        // Stale entries are dropped at the top; when they come to outnumber the planets, all.
        if (nearest_.size() > 2 * reaches_.size() + 64) {
            restartHeaps();
        } else {
            heapUp(nearest_, keptNearest, nearestOnTop);
            heapUp(farthest_, keptFarthest, farthestOnTop);
        }
    } else {
        startOver(root.children(), root.position(), eye);
    }
    kept_ = true;
    sceneId_ = scene.id();
    revision_ = scene.revision();

    const Entry* nearest = top(nearest_, nearestOnTop);
    const Entry* farthest = top(farthest_, farthestOnTop);
    if (farthest == nullptr || !(farthest->distance > 0.0) || !std::isfinite(farthest->distance) ||
        !std::isfinite(nearest->distance))
        return DepthRange{};
    const double zFar = farthest->distance * (1.0 + kRangeMargin);
    const double zNear =
        std::max(nearest->distance * (1.0 - kRangeMargin), zFar * kMinNearFraction);
    return DepthRange{zNear, zFar};
}

SceneDepthRange SceneDepthRange::prepared(const SceneNodeBatch& planets, Vec3 origin, Vec3 eye) {
    SceneDepthRange range;
    range.startOver(planets.nodes(), origin, eye);
    return range;
}

void SceneDepthRange::adopt(SceneDepthRange&& prepared, const Scene& scene) {
    if (!(prepared.origin_ == scene.rootNode().position()))
        return;
    *this = std::move(prepared);
    kept_ = true;
    sceneId_ = scene.id();
    revision_ = scene.revision();
}

void SceneDepthRange::startOver(const SceneNode::ChildList& nodes, Vec3 origin, Vec3 eye) {
    reaches_.clear();
    nearest_.clear();
    farthest_.clear();
    eye_ = eye;
    origin_ = origin;
    // Taken in unordered, then sorted once.
    takeIn(nodes, origin);
    std::sort(reaches_.begin(), reaches_.end(), byNode);
    std::make_heap(nearest_.begin(), nearest_.end(), nearestOnTop);
    std::make_heap(farthest_.begin(), farthest_.end(), farthestOnTop);
}

void SceneDepthRange::takeIn(const SceneNode::ChildList& nodes, Vec3 origin) {
    for (const auto& child : nodes) {
        if (child->isHidden())
            continue;
        const Vec3 world = origin + child->position();
        add(*child, world, false);
        takeIn(child->children(), world);
    }
}

void SceneDepthRange::add(const SceneNode& node, Vec3 world, bool sorted) {
    const auto& sphere = node.sphere();
    if (!sphere || !(sphere->radius > 0.0))
        return;
    const double distance = eye_.z - world.z;
    if (!(distance + sphere->radius > 0.0))
        return;
    const Reach reach{distance - sphere->radius, distance + sphere->radius, ++stamp_};
    if (std::isnan(reach.nearest) || std::isnan(reach.farthest)) // no place in an order
        return;
    if (sorted)
        reaches_.insert(std::lower_bound(reaches_.begin(), reaches_.end(), &node, nodeBefore),
                        {&node, reach});
    else
        reaches_.emplace_back(&node, reach);
    nearest_.push_back({reach.nearest, &node, reach.stamp});
    farthest_.push_back({reach.farthest, &node, reach.stamp});
}

void SceneDepthRange::forget(const SceneNode* node) {
    const auto found = std::lower_bound(reaches_.begin(), reaches_.end(), node, nodeBefore);
    if (found != reaches_.end() && found->first == node)
        reaches_.erase(found);
}

bool SceneDepthRange::stale(const Entry& entry) const {
    const auto found = std::lower_bound(reaches_.begin(), reaches_.end(), entry.node, nodeBefore);
    return found == reaches_.end() || found->first != entry.node ||
           found->second.stamp != entry.stamp;
}

void SceneDepthRange::heapUp(std::vector<Entry>& heap, std::size_t from, Order order) {
    for (std::size_t end = from + 1; end <= heap.size(); ++end)
        std::push_heap(heap.begin(), heap.begin() + static_cast<std::ptrdiff_t>(end), order);
}

const SceneDepthRange::Entry* SceneDepthRange::top(std::vector<Entry>& heap, Order order) {
    while (!heap.empty() && stale(heap.front())) {
        std::pop_heap(heap.begin(), heap.end(), order);
        heap.pop_back();
    }
    return heap.empty() ? nullptr : &heap.front();
}

void SceneDepthRange::restartHeaps() {
    nearest_.clear();
    farthest_.clear();
    for (const auto& [node, reach] : reaches_) {
        nearest_.push_back({reach.nearest, node, reach.stamp});
        farthest_.push_back({reach.farthest, node, reach.stamp});
    }
    std::make_heap(nearest_.begin(), nearest_.end(), nearestOnTop);
    std::make_heap(farthest_.begin(), farthest_.end(), farthestOnTop);
}

} // namespace orrery
