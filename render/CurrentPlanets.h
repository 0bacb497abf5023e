#pragma once

#include "core/scene/CameraProjection.h"
#include "core/scene/Scene.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"
#include "render/ShownPlanets.h"
#include "render/SurfaceTextures.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace orrery::render {

// The planets of a scene as the renderer draws them, kept current: brought up to date only
// when the scene or the view changed, patched from the scene's list of changed planets where
// that can be, else rebuilt, and a rebuild of a large scene taken in over several frames.
// The surfaces are handed out a layer for each planet's image as the planets are made.
class CurrentPlanets {
public:
    explicit CurrentPlanets(SurfaceTextures& surfaces) : surfaces_(surfaces) {}

    // How many nodes of the scene a refresh that may be spread takes in; the largest
    // number (the start) takes in the whole scene at once.
    void setNodesPerFrame(std::size_t nodes) { nodesPerFrame_ = nodes; }
    bool takingIn() const { return collecting_.has_value(); }

    enum class Refresh { takingIn, same, changed };
    // Brings the planets up to date for the scene seen by `camera` in a frame of width x
    // height pixels (sprites up to `largestSprite` pixels): `takingIn` while a rebuild spread
    // over frames (when `spread`) goes on, `changed` when the planets or their draws changed.
    Refresh refresh(const Scene& scene, const CameraProjection& camera, int width, int height,
                    double largestSprite, bool spread);

    ShownPlanets& list() { return planets_; }
    const std::vector<PlanetDraw>& draws() const { return draws_; }
    const std::optional<SceneLight>& light() const { return light_; }
    // The frame of the last refresh that was not taking in.
    const ScreenFrame& frame() const { return madeFor_->frame; }
    // Takes where the picture differs after a refresh that changed the planets (see
    // ShownPlanets::takeChangedArea).
    std::optional<PixelBox> takeChangedArea() { return std::exchange(changedArea_, std::nullopt); }

private:
    // What the planets are made for: the scene as it stood, seen from an eye in a frame.
    struct View {
        std::uint64_t sceneId = 0;
        std::uint64_t revision = 0;
        Vec3 eye;
        ScreenFrame frame;

        // The same scene seen the same way, whatever changed in it.
        bool sameViewAs(const View& other) const;
        bool operator==(const View& other) const {
            return sameViewAs(other) && revision == other.revision;
        }
    };
    void beginRebuild(const Scene& scene, const View& view);
    bool patch(const Scene& scene, const ScreenFrame& frame);

    SurfaceTextures& surfaces_;
    ShownPlanets planets_;
    std::vector<PlanetDraw> draws_;
    std::optional<PixelBox> changedArea_;
    std::optional<SceneLight> light_;
    std::optional<View> madeFor_;    // none before the first
    std::optional<View> collecting_; // a rebuild taken in over several frames, for this view
    std::size_t nodesPerFrame_ = std::numeric_limits<std::size_t>::max();
};

} // namespace orrery::render
