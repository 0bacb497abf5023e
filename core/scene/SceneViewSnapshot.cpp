#include "core/scene/PlanetNodes.h"
#include "core/scene/SceneView.h"

namespace orrery {

std::vector<CapturedNode> SceneView::capturePlanet(std::string_view tsecs) const {
    std::vector<CapturedNode> captured;
    for (auto& node : scene_.rootNode().childNodesNamed(planetNodeName(tsecs)))
        captured.push_back({node, node->position(), node->isHidden()});
    return captured;
}

void SceneView::restorePlanet(std::string_view tsecs, const std::vector<CapturedNode>& nodes) {
    SceneNode& root = scene_.rootNode();
    for (const auto& node : root.childNodesNamed(planetNodeName(tsecs)))
        node->removeFromParentNode();
    for (const CapturedNode& captured : nodes) {
        captured.node->setPosition(captured.position);
        captured.node->setHidden(captured.hidden);
        root.addChildNode(captured.node);
    }
    setNeedsDisplay();
}

CameraState SceneView::cameraState() const {
    return {cameraXFov_, cameraYFov_, cameraNode_->position(), cameraOrtho_, cameraZrange_};
}

void SceneView::setCameraState(const CameraState& state) {
    updateCamera(state.xFov, state.yFov, state.position.x, state.position.y, state.position.z,
                 state.orthographic, state.zRange);
}

LightState SceneView::lightState() const {
    const auto& light = lightNode_->light();
    return {lightNode_->position(), light ? light->color : kWhite};
}

void SceneView::setLightState(const LightState& state) {
    if (state.color != lightState().color)
        updateLightColor(state.color);
    lightNode_->setPosition(state.position);
    setNeedsDisplay();
}

void SceneView::copyInto(SceneView& copy) const {
    copy.setCameraState(cameraState());
    copy.setLightState(lightState());
    copy.setViewSize(viewWidth_, viewHeight_);
    SceneNode& root = copy.scene_.rootNode();
    for (const auto& node : scene_.rootNode().children()) {
        if (node == cameraNode_ || node == lightNode_)
            continue;
        auto twin = SceneNode::create();
        twin->setName(node->name());
        twin->setPosition(node->position());
        twin->setHidden(node->isHidden());
        twin->setSphere(node->sphere());
        root.addChildNode(std::move(twin));
    }
}

} // namespace orrery
