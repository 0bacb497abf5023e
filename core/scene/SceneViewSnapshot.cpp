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

} // namespace orrery
