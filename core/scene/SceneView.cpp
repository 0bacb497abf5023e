#include "core/scene/SceneView.h"

#include "core/model/TextNumber.h"
#include "core/scene/PlanetNodes.h"

#include <utility>

namespace orrery {
namespace {

constexpr double kStartFov = 45.0;
constexpr Vec3 kCameraStart{0.0, 0.0, 500.0};
constexpr Vec3 kLightStart{0.0, 0.0, 100.0};
constexpr const char* kLightName = "light";

std::shared_ptr<SceneNode> makeLightNode(Color color, Vec3 position) {
    auto node = SceneNode::create();
    node->setName(kLightName);
    node->setLight(Light{LightType::omni, kLightName, color});
    node->setPosition(position);
    return node;
}

} // namespace

SceneView::SceneView() : currentNode_(SceneNode::create()) {
    Camera camera;
    camera.xFov = kStartFov;
    camera.yFov = kStartFov;
    camera.orthographicScale = 1.0;
    camera.automaticallyAdjustsZRange = true;
    cameraNode_ = SceneNode::create();
    cameraNode_->setCamera(camera);
    cameraNode_->setPosition(kCameraStart);
    scene_.rootNode().addChildNode(cameraNode_);

    lightNode_ = makeLightNode(kWhite, kLightStart);
    scene_.rootNode().addChildNode(lightNode_);
}

void SceneView::setNeedsDisplay() const {
    if (needsDisplay_)
        needsDisplay_();
}

void SceneView::createPlanet(std::string_view tsecs, std::string_view x, std::string_view y,
                             std::string_view z, std::string_view radius) {
    auto node = SceneNode::create();
    node->setName(planetNodeName(tsecs));
    node->setSphere(Sphere{sceneNumber(radius), std::nullopt});
    node->setPosition({sceneNumber(x), sceneNumber(y), sceneNumber(z)});
    scene_.rootNode().addChildNode(std::move(node));
    setNeedsDisplay();
}

void SceneView::buildPlanetNode(std::string_view tsecs, Color color, std::int64_t styleIndex,
                                std::int64_t surfaceIndex, std::string_view x, std::string_view y,
                                std::string_view z, std::string_view radius) {
    scene_.rootNode().addChildNode(
        makePlanetNode(tsecs, color, styleIndex, surfaceIndex, x, y, z, radius));
    setNeedsDisplay();
}

void SceneView::createPlanet2(std::string_view tsecs, Color color, std::int64_t styleIndex,
                              std::int64_t surfaceIndex, std::string_view x, std::string_view y,
                              std::string_view z, std::string_view radius) {
    buildPlanetNode(tsecs, color, styleIndex, surfaceIndex, x, y, z, radius);
}

void SceneView::updatePlanet(std::string_view tsecs, Color color, std::int64_t styleIndex,
                             std::int64_t surfaceIndex, std::string_view x, std::string_view y,
                             std::string_view z, std::string_view radius) {
    for (const auto& node : scene_.rootNode().childNodesNamed(planetNodeName(tsecs))) {
        node->removeFromParentNode();
        buildPlanetNode(tsecs, color, styleIndex, surfaceIndex, x, y, z, radius);
    }
}

void SceneView::updateStatus(std::string_view tsecs, std::int64_t state) {
    for (const auto& node : scene_.rootNode().childNodesNamed(planetNodeName(tsecs))) {
        node->setHidden(state == 0);
        setNeedsDisplay();
    }
}

void SceneView::deletePlanet(std::string_view tsecs) {
    for (const auto& node : scene_.rootNode().childNodesNamed(planetNodeName(tsecs))) {
        node->removeFromParentNode();
        setNeedsDisplay();
    }
}

bool SceneView::hasPlanets() const {
    for (const auto& node : scene_.rootNode().children())
        if (node != cameraNode_ && node != lightNode_)
            return true;
    return false;
}

SceneNodeBatch SceneView::replacePlanets(SceneNodeBatch planets) {
    const std::shared_ptr<SceneDepthRange> prepared = planets.takeDepthRange();
    SceneNodeBatch old =
        scene_.rootNode().exchangeChildren(std::move(planets), [this](const SceneNode& node) {
            return &node == cameraNode_.get() || &node == lightNode_.get();
        });
    // The camera and the light have no sphere: the planets' range is the scene's.
    if (prepared)
        depthRange_.adopt(std::move(*prepared), scene_);
    setNeedsDisplay();
    return old;
}

void SceneView::updateCamera(double xFov, double yFov, double x, double y, double z,
                             bool orthographic, bool zRange) {
    cameraNode_->setPosition({x, y, z});
    cameraXFov_ = xFov;
    cameraYFov_ = yFov;
    cameraOrtho_ = orthographic;
    cameraZrange_ = zRange;
    if (cameraNode_->parent() != &scene_.rootNode())
        scene_.rootNode().addChildNode(cameraNode_);
    setNeedsDisplay();
}

std::vector<std::string> SceneView::getCameraSettings() const {
    const Vec3 position = cameraNode_->position();
    return {formatFixed(cameraXFov_, 1), formatFixed(cameraYFov_, 1), formatF(position.x),
            formatF(position.y),         formatF(position.z),         cameraOrtho_ ? "1" : "0",
            cameraZrange_ ? "1" : "0"};
}

void SceneView::updateLight(std::string_view x, std::string_view y, std::string_view z) {
    lightNode_->setPosition({sceneNumber(x), sceneNumber(y), sceneNumber(z)});
    setNeedsDisplay();
}

void SceneView::updateLightColor(Color color) {
    const Vec3 position = lightNode_->position();
    lightNode_->removeFromParentNode();
    lightNode_ = makeLightNode(color, position);
    scene_.rootNode().addChildNode(lightNode_);
    setNeedsDisplay();
}

void SceneView::setSurfaceTurns(const std::function<double(const Sphere&)>& turnOf) {
    for (const auto& node : scene_.rootNode().children()) {
        if (!node->sphere())
            continue;
        const double turn = turnOf(*node->sphere());
        if (turn == node->sphere()->turn)
            continue;
        Sphere turned = *node->sphere();
        turned.turn = turn;
        node->setSphere(std::move(turned));
    }
    setNeedsDisplay();
}

Vec3 SceneView::getLightPosition() const {
    return lightNode_->position();
}

void SceneView::setViewSize(double width, double height) {
    viewWidth_ = width;
    viewHeight_ = height;
    setNeedsDisplay();
}

DepthRange SceneView::depthRange() const {
    return depthRange_.of(scene_, cameraNode_->worldPosition());
}

CameraProjection SceneView::projection(double width, double height) const {
    // The camera object keeps the field of view it got at the start, whatever is recorded.
    const double yFov = cameraNode_->camera() ? cameraNode_->camera()->yFov : kStartFov;
    return CameraProjection(cameraNode_->worldPosition(), yFov, width, height, depthRange());
}

std::vector<HitResult> SceneView::hitTest(ViewPoint point) const {
    return orrery::hitTest(scene_.rootNode(), projection(), point.x, point.y);
}

} // namespace orrery
