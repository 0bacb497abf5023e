#pragma once

#include "core/scene/CameraProjection.h"
#include "core/scene/Scene.h"
#include "core/scene/Vec3.h"

#include <cstdint>
#include <set>
#include <unordered_map>

namespace orrery {

// The depth range that holds every visible sphere in front of the eye, for a camera looking
// along -z. It depends only on the spheres' z, their radii and the eye's z, so moving a
// planet across the screen leaves it unchanged. Without any such sphere: 1 to 100.
//
// Kept up to date from the scene's change log: after a change of a few planets among
// 100,000, only those are looked at again, not every node.
class SceneDepthRange {
public:
    DepthRange of(const Scene& scene, Vec3 eye);

private:
    struct Reach {
        double nearest = 0.0; // distances from the eye along the view
        double farthest = 0.0;
    };
    void rebuild(const SceneNode& node, Vec3 origin);
    void add(const SceneNode& node, Vec3 world);
    void remove(const SceneNode* node);

    std::unordered_map<const SceneNode*, Reach> reaches_;
    std::multiset<double> nearest_;
    std::multiset<double> farthest_;
    bool kept_ = false;
    std::uint64_t sceneId_ = 0;
    std::uint64_t revision_ = 0;
    Vec3 eye_;
};

} // namespace orrery
