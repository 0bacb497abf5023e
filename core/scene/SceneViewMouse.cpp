#include "core/model/TextNumber.h"
#include "core/scene/Replace.h"
#include "core/scene/SceneView.h"

#include <cmath>

// Picking and dragging planets with the mouse.
namespace orrery {
namespace {

std::string tsecsOf(const SceneNode& node) {
    return Replace(node.name(), "planet", "");
}

bool isFinite(Vec3 v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace

void SceneView::mouseDown(ViewPoint point) {
    const auto hits = hitTest(point);
    if (hits.empty()) {
        if (controller_.hitText1Selected)
            controller_.hitText1Selected("0");
        return;
    }
    const HitResult& nearest = hits.front();
    for (const auto& child : scene_.rootNode().childNodesNamed(nearest.node->name())) {
        currentNode_ = child;
        canUpdatePlanet_ = true;
        startVector_ = nearest.localCoordinates;
        // The depth of the local offset taken as a scene point (a point near the origin),
        // not of the hit point: this sets how fast the planet follows the mouse.
        zPosition_ = projectPoint(startVector_).z;
        if (controller_.hitText1Selected)
            controller_.hitText1Selected(tsecsOf(*child));
    }
}

void SceneView::mouseDragged(ViewPoint point) {
    if (!canUpdatePlanet_)
        return;
    const Vec3 world = unprojectPoint({point.x, point.y, zPosition_});
    const Vec3 moved{world.x - startVector_.x, world.y - startVector_.y,
                     currentNode_->position().z};
    // A degenerate projection (the anchor in the eye's plane) gives no usable point;
    // the planet then stays where it is rather than getting a position of infinities.
    if (!isFinite(moved))
        return;
    currentNode_->setPosition(moved);
    setNeedsDisplay();
    if (controller_.updateTextPostion)
        controller_.updateTextPostion(
            tsecsOf(*currentNode_), formatGeneral(static_cast<float>(moved.x)),
            formatGeneral(static_cast<float>(moved.y)), formatGeneral(static_cast<float>(moved.z)));
}

} // namespace orrery
