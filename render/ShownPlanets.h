#pragma once

#include "core/scene/SceneChangeLog.h"
#include "core/scene/SceneNode.h"
#include "render/PlanetCulling.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orrery::render {

// The planets to draw, in drawing order, each with the node it comes from, the pixels it may
// touch and how it was last drawn. Made from the whole scene, or brought up to date from the
// scene's list of changed planets at a cost that follows the number of changes (besides a
// few passes that only move memory), so that the picture needs drawing again only where a
// changed planet was or is.
class ShownPlanets {
public:
    // Makes the list again of every planet of the scene that shows in the frame, in steps:
    // each takes in about `nodes` more nodes of the scene, and the last, which returns true,
    // replaces the list; a scene that took several steps is put in order in a step of its
    // own, and its list returned by the next. The scene must not change meanwhile, and the
    // list is not to be drawn until the last step.
    void beginRebuild(const SceneNode& root, Vec3 eye, const ScreenFrame& frame);
    bool continueRebuild(const SurfaceLayerLookup& layerOf, std::size_t nodes);
    // Redoes the planets of the changed nodes, for the eye and frame of the last rebuild.
    // False, with the list as it was, when a changed planet needs the whole scene looked at
    // again: a surface that `layerOf` has no layer for.
    bool patch(const SceneNode& root, const std::vector<SceneChange>& changes,
               const SurfaceLayerLookup& layerOf);

    const std::vector<PlanetInstance>& instances() const { return instances_; }
    // Whether planets changed since the last takeChangedArea.
    bool hasChanges() const { return changedArea_.has_value(); }

    // Takes note that the planets are drawn by `draws` (as groupPlanetDraws splits them) and
    // returns where the picture differs from the one drawn before: where planets went, came
    // or are drawn another way; everything after a rebuild; none when nothing changed.
    std::optional<PixelBox> takeChangedArea(const std::vector<PlanetDraw>& draws);

    // What a pass that draws `area` draws, replacing the contents of `pass`: the planets
    // that may touch the area, each the way `draws` draws it and at the pixels it must be
    // drawn at, without those that cannot show (see assignPassRoles); those alone in the area
    // first, then the others in order. `opaqueRamps` tells which gradient ramps are opaque.
    struct Pass {
        // The planets as the list holds them, drawn by the scene's draws over the whole area:
        // a pass over many planets that culling would not pay for, which need not be copied.
        bool asListed = false;
        std::vector<PlanetInstance> instances;
        std::vector<DrawnPixels> pixels; // beside instances
        std::vector<PlanetDraw> draws;
        // The bands the area was planned in, each with the end of its draws: a band's draws
        // are to be cut to its area, as a sprite's square may reach past it.
        std::vector<std::pair<PixelRect, std::size_t>> bands;
        // Where the planets may leave a colour that lets what lies behind show; none: nowhere.
        std::optional<PixelRect> soft;
    };
    void passOver(const PixelRect& area, const std::vector<PlanetDraw>& draws,
                  const DepthFrame& frame, const std::vector<bool>& opaqueRamps, Pass& pass);

private:
    struct Entry {
        PlanetOrigin origin;
        PixelBox reach; // the pixels the planet may touch, edge included; unbounded: all
        std::uint8_t drawnAs = 0;
    };
    void changed(const PixelBox& area);
    // The collection, in order and cut to what shows in the frame, becomes the list.
    void takeCollection();

    std::vector<PlanetInstance> instances_;
    std::vector<Entry> entries_; // beside instances_
    PlanetCollection collection_;
    enum class Stage { collecting, ordering, made };
    Stage stage_ = Stage::made;
    bool spread_ = false;                 // the rebuild took more than one step
    std::vector<PlanetOrigin> collected_; // the origins of a rebuild, beside instances_
    Vec3 nextEye_;
    ScreenFrame nextFrame_;
    Vec3 eye_;
    ScreenFrame frame_;
    std::optional<PixelBox> changedArea_;

    // A band of a pass's area, planned on a thread of its own: its candidates, the draws they
    // come from and their plan, kept from pass to pass for their memory.
    struct Band {
        PixelRect area;
        std::vector<PassCandidate> candidates;
        std::vector<const PlanetDraw*> candidateDraws;
        PassPlan plan;
    };
    void planBand(Band& band, const std::vector<PlanetDraw>& draws, const DepthFrame& frame,
                  const std::vector<bool>& opaqueRamps);
    static void appendBand(const Band& band, Pass& pass);
    std::vector<Band> bands_;
};

} // namespace orrery::render
