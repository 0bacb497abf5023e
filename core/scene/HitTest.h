#pragma once

#include "core/scene/CameraProjection.h"
#include "core/scene/SceneNode.h"
#include "core/scene/Vec3.h"

#include <memory>
#include <vector>

namespace orrery {

struct HitResult {
    std::shared_ptr<SceneNode> node;
    Vec3 localCoordinates; // the hit point relative to the node's position
    Vec3 worldCoordinates;
    double distance = 0.0; // from the eye
};

// The spheres under a view point, nearest first. Hidden nodes (and everything below them)
// and spheres of radius 0 or less are never hit, and neither is a sphere around the eye,
// whose outside faces the eye cannot see.
std::vector<HitResult> hitTest(const SceneNode& root, const CameraProjection& camera, double viewX,
                               double viewY);

} // namespace orrery
