#pragma once

#include "core/scene/CameraProjection.h"
#include "core/scene/Scene.h"
#include "core/scene/Vec3.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace orrery {

// The depth range that holds every visible sphere in front of the eye, for a camera looking
// along -z. It depends only on the spheres' z, their radii and the eye's z, so moving a
// planet across the screen leaves it unchanged. Without any such sphere: 1 to 100.
//
// Kept up to date from the scene's change log: after a change of a few planets among
// 100,000, only those are looked at again, not every node. The nearest and farthest reaches
// are heaps whose entries go stale when their planet changes or goes, dropped when they come
// to the top: a whole scene is taken in without an allocation per planet for its order.
class SceneDepthRange {
public:
    DepthRange of(const Scene& scene, Vec3 eye);

    // The range of planets not yet in a scene, to be the children of a root at `origin` seen
    // from `eye`: worked out where they are made (on the worker that reads a package), so
    // that the scene taking them in need not go over 100,000 planets again on its thread.
    static SceneDepthRange prepared(const SceneNodeBatch& planets, Vec3 origin, Vec3 eye);
    // Takes a prepared range as the range of `scene` as it stands, whose planets are now the
    // prepared ones and nothing else with a sphere; nothing when it was prepared for another
    // root position. (Seen from another eye, `of` starts over.)
    void adopt(SceneDepthRange&& prepared, const Scene& scene);

private:
    struct Reach {
        double nearest = 0.0; // distances from the eye along the view
        double farthest = 0.0;
        std::uint64_t stamp = 0; // tells this reach from the planet's earlier ones
    };
    struct Entry {
        double distance = 0.0;
        const SceneNode* node = nullptr;
        std::uint64_t stamp = 0;
    };
    // Heap orders: a heap keeps on top what no other entry comes before.
    using Order = bool (*)(const Entry&, const Entry&);
    static bool nearestOnTop(const Entry& a, const Entry& b) { return a.distance > b.distance; }
    static bool farthestOnTop(const Entry& a, const Entry& b) { return a.distance < b.distance; }

    using NodeReach = std::pair<const SceneNode*, Reach>;
    static bool byNode(const NodeReach& a, const NodeReach& b) {
        return std::less<const SceneNode*>{}(a.first, b.first);
    }
    static bool nodeBefore(const NodeReach& a, const SceneNode* node) {
        return std::less<const SceneNode*>{}(a.first, node);
    }

    // Forgets everything and takes in the nodes and all below them.
    void startOver(const SceneNode::ChildList& nodes, Vec3 origin, Vec3 eye);
    void takeIn(const SceneNode::ChildList& nodes, Vec3 origin);
    // Notes the planet's reach, in its place when `sorted` (else at the end, for the caller to
    // sort), and appends its entries, which the caller makes part of the heaps.
    void add(const SceneNode& node, Vec3 world, bool sorted);
    void forget(const SceneNode* node);
    bool stale(const Entry& entry) const;
    // Makes the entries appended after the first `from` part of the heap.
    static void heapUp(std::vector<Entry>& heap, std::size_t from, Order order);
    // The heap's top, after dropping stale entries; none when it holds no planet.
    const Entry* top(std::vector<Entry>& heap, Order order);
    // The heaps made again from the reaches alone.
    void restartHeaps();

    // By node: a flat list sorted once for a whole scene, where a map would allocate for
    // each of 100,000 planets.
    std::vector<NodeReach> reaches_;
    std::vector<Entry> nearest_;  // the least distance on top
    std::vector<Entry> farthest_; // the greatest distance on top
    std::uint64_t stamp_ = 0;
    bool kept_ = false;
    std::uint64_t sceneId_ = 0;
    std::uint64_t revision_ = 0;
    Vec3 eye_;
    Vec3 origin_; // of the root the reaches were taken in below
};

} // namespace orrery
