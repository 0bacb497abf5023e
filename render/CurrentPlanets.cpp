#include "render/CurrentPlanets.h"

namespace orrery::render {

bool CurrentPlanets::View::sameViewAs(const View& other) const {
    return sceneId == other.sceneId && eye == other.eye &&
           frame.ndcToRayX == other.frame.ndcToRayX && frame.ndcToRayY == other.frame.ndcToRayY &&
           frame.width == other.frame.width && frame.height == other.frame.height;
}

CurrentPlanets::Refresh CurrentPlanets::refresh(const Scene& scene, const CameraProjection& camera,
                                                int width, int height, double largestSprite,
                                                bool spread) {
    const ScreenFrame frame{camera.ndcToRayX(), camera.ndcToRayY(), width, height, largestSprite};
    const View view{scene.id(), scene.revision(), camera.eye(), frame};
    if (collecting_ && !(*collecting_ == view)) {
        // The scene changed while it was being taken in: from the start again. The surfaces'
        // pass is begun again too, as the last list's layers may have moved.
        beginRebuild(scene, view);
    } else if (!collecting_) {
        if (madeFor_ == view)
            return Refresh::same;
        if (!madeFor_ || !madeFor_->sameViewAs(view) || !patch(scene, frame))
            beginRebuild(scene, view);
    }
    if (collecting_) {
        const std::size_t nodes = spread ? nodesPerFrame_ : std::numeric_limits<std::size_t>::max();
        if (!planets_.continueRebuild(
                [this](const std::string& name) { return surfaces_.layerOf(name); }, nodes))
            return Refresh::takingIn;
        collecting_.reset();
        surfaces_.endScene(largestSurfaceRadius(planets_.instances(), frame));
    }
    light_ = findLight(scene.rootNode());
    madeFor_ = view;
    if (!planets_.hasChanges())
        return Refresh::same;
    groupPlanetDraws(planets_.instances(), frame, draws_);
    changedArea_ = planets_.takeChangedArea(draws_);
    return Refresh::changed;
}

void CurrentPlanets::beginRebuild(const Scene& scene, const View& view) {
    surfaces_.beginScene();
    planets_.beginRebuild(scene.rootNode(), view.eye, view.frame);
    collecting_ = view;
}

// The planets changed since the last look, redone one by one; false when one needs what
// only a pass over the whole scene gives the surfaces (a new image or another level of
// detail), and the planets are to be rebuilt.
bool CurrentPlanets::patch(const Scene& scene, const ScreenFrame& frame) {
    const auto changes = scene.changesSince(madeFor_->revision);
    if (!changes)
        return false;
    return planets_.patch(scene.rootNode(), *changes,
                          [this](const std::string& name) { return surfaces_.heldLayer(name); }) &&
           (!planets_.hasChanges() ||
            surfaces_.keepsDetailFor(largestSurfaceRadius(planets_.instances(), frame)));
}

} // namespace orrery::render
