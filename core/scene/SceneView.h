#pragma once

#include "core/model/Color.h"
#include "core/scene/CameraProjection.h"
#include "core/scene/HitTest.h"
#include "core/scene/Scene.h"
#include "core/scene/SceneDepthRange.h"
#include "core/scene/SceneNode.h"
#include "core/scene/Vec3.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orrery {

// A point of the view: x to the right and y up from the bottom-left corner, in points.
struct ViewPoint {
    double x = 0.0;
    double y = 0.0;
};

// What the scene tells the controller from its mouse handling.
struct SceneControllerCalls {
    // The tsecs of the clicked planet, or "0" for a click on empty space.
    std::function<void(const std::string& tsecs)> hitText1Selected;
    // A dragged planet's new position, each component as text.
    std::function<void(const std::string& tsecs, const std::string& x, const std::string& y,
                       const std::string& z)>
        updateTextPostion;
};

// A planet node as it stood when captured, so that an undo can put it back exactly: the
// node itself (an edit replaces nodes rather than changing them) with the two things a
// drag and a visibility change alter in place.
struct CapturedNode {
    std::shared_ptr<SceneNode> node;
    Vec3 position;
    bool hidden = false;
};

// The camera as recorded and placed, and the light, for putting them back.
struct CameraState {
    double xFov = 45.0;
    double yFov = 45.0;
    Vec3 position;
    bool orthographic = true;
    bool zRange = true;
    friend bool operator==(const CameraState&, const CameraState&) = default;
};
struct LightState {
    Vec3 position;
    Color color = kWhite;
    friend bool operator==(const LightState&, const LightState&) = default;
};

// The planet scene and everything the main window's 3D view does with it, without any
// toolkit: planets as sphere nodes found again by name, the camera and the light, the
// projection of the view, hit testing, and dragging planets with the mouse. Texts are
// the planet record's own texts; numbers are read from them in single precision.
class SceneView {
public:
    // Builds the scene: a camera at (0, 0, 500) and a white omnidirectional light named
    // "light" at (0, 0, 100), nothing else.
    SceneView();
    SceneView(const SceneView&) = delete;
    SceneView& operator=(const SceneView&) = delete;

    // Planets. A node is named "planet" + tsecs; every operation that finds nodes acts on
    // each child of the root with exactly that name.
    void createPlanet(std::string_view tsecs, std::string_view x, std::string_view y,
                      std::string_view z, std::string_view radius);
    void createPlanet2(std::string_view tsecs, Color color, std::int64_t styleIndex,
                       std::int64_t surfaceIndex, std::string_view x, std::string_view y,
                       std::string_view z, std::string_view radius);
    // Replaces each matching node by a new, visible one; creates nothing when none match.
    void updatePlanet(std::string_view tsecs, Color color, std::int64_t styleIndex,
                      std::int64_t surfaceIndex, std::string_view x, std::string_view y,
                      std::string_view z, std::string_view radius);
    // State 0 hides, anything else shows.
    void updateStatus(std::string_view tsecs, std::int64_t state);
    void deletePlanet(std::string_view tsecs);
    // Whether any node besides the camera and the light is in the scene.
    bool hasPlanets() const;
    // Replaces every planet by the batch's nodes (made with makePlanetNode) as one change and
    // returns the planets taken away: what opening a package or New does, at a cost that
    // does not grow with the planets, which are built and freed away from the window.
    SceneNodeBatch replacePlanets(SceneNodeBatch planets);

    // Turns every planet's surface to the share of a turn `turnOf` gives for its sphere.
    void setSurfaceTurns(const std::function<double(const Sphere&)>& turnOf);

    // Camera and light. The recorded field of view and flags are kept for the popover and
    // the project file only: the picture always uses the perspective set up at the start.
    void updateCamera(double xFov, double yFov, double x, double y, double z, bool orthographic,
                      bool zRange);
    // x and y field of view ("%0.1f"), camera x, y, z ("%f"), orthographic and z-range
    // flags ("1" or "0").
    std::vector<std::string> getCameraSettings() const;
    void updateLight(std::string_view x, std::string_view y, std::string_view z);
    // Replaces the light by a new one of this colour at the old light's position.
    void updateLightColor(Color color);
    Vec3 getLightPosition() const;

    // Snapshots for undo (SceneViewSnapshot.cpp). Restoring a planet replaces whatever
    // nodes carry its name now by the captured ones, in their captured order.
    std::vector<CapturedNode> capturePlanet(std::string_view tsecs) const;
    void restorePlanet(std::string_view tsecs, const std::vector<CapturedNode>& nodes);
    // Gives a fresh view the same camera, light, size and planets, in nodes of its own, so
    // that another thread may draw or turn them while this view goes on changing.
    void copyInto(SceneView& copy) const;
    CameraState cameraState() const;
    void setCameraState(const CameraState& state);
    LightState lightState() const;
    void setLightState(const LightState& state);

    // The view's size in points, which sets the horizontal field of view.
    void setViewSize(double width, double height);
    double viewWidth() const { return viewWidth_; }
    double viewHeight() const { return viewHeight_; }
    // The camera's perspective for the view, or for a picture of another size (the same
    // camera at a backing scale, or an export).
    CameraProjection projection() const { return projection(viewWidth_, viewHeight_); }
    CameraProjection projection(double width, double height) const;
    Vec3 projectPoint(Vec3 scenePoint) const { return projection().project(scenePoint); }
    Vec3 unprojectPoint(Vec3 viewPoint) const { return projection().unproject(viewPoint); }
    std::vector<HitResult> hitTest(ViewPoint point) const;

    // Mouse handling: a press on a planet selects it and starts a drag that moves it in
    // the plane of the screen; a press on empty space selects nothing.
    void setController(SceneControllerCalls calls) { controller_ = std::move(calls); }
    void mouseDown(ViewPoint point);
    void mouseDragged(ViewPoint point);
    void mouseUp() { canUpdatePlanet_ = false; }
    bool isDragging() const { return canUpdatePlanet_; }

    // Called after every change of the scene, so that the window redraws.
    void setNeedsDisplayHandler(std::function<void()> handler) {
        needsDisplay_ = std::move(handler);
    }

    const Scene& scene() const { return scene_; }
    const SceneNode& cameraNode() const { return *cameraNode_; }
    const SceneNode& lightNode() const { return *lightNode_; }

private:
    void buildPlanetNode(std::string_view tsecs, Color color, std::int64_t styleIndex,
                         std::int64_t surfaceIndex, std::string_view x, std::string_view y,
                         std::string_view z, std::string_view radius);
    void setNeedsDisplay() const;
    DepthRange depthRange() const;

    Scene scene_;
    std::shared_ptr<SceneNode> cameraNode_;
    double cameraXFov_ = 45.0;
    double cameraYFov_ = 45.0;
    bool cameraOrtho_ = true;
    bool cameraZrange_ = true;
    std::shared_ptr<SceneNode> lightNode_;

    // Drag state.
    Vec3 startVector_;
    double zPosition_ = 0.0;
    bool canUpdatePlanet_ = false;
    std::shared_ptr<SceneNode> currentNode_;

    double viewWidth_ = 960.0;
    double viewHeight_ = 540.0;
    SceneControllerCalls controller_;
    std::function<void()> needsDisplay_;

    // The near/far range is a function of the scene, kept up to date as it changes.
    mutable SceneDepthRange depthRange_;
};

} // namespace orrery
