#pragma once

#include "core/model/Color.h"
#include "core/scene/SceneNode.h"
#include "core/scene/Vec3.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orrery::render {

// What the GPU gets per planet: 40 bytes, whatever the radius.
struct PlanetInstance {
    float center[3]; // relative to the eye, so that large coordinates keep their precision
    float radius;
    float color[4];     // linear diffuse colour, straight alpha; used when rampRow < 0
    float rampRow;      // row of the gradient ramp texture, or -1
    float surfaceLayer; // layer of the surface texture array, or -1 for no emission
};
static_assert(sizeof(PlanetInstance) == 40);

// Maps a surface image name to its texture layer, -1 when there is no such image.
using SurfaceLayerLookup = std::function<int(const std::string& surfaceName)>;

// Every sphere that can show (not hidden, no hidden ancestor, radius above 0), farthest
// first, replacing the contents of `instances`. Drawn in this order, a nearer planet's soft
// edge always blends over the planets behind it. The time taken grows in proportion to the
// number of planets: the order comes from a radix sort.
void collectPlanetInstances(const SceneNode& root, Vec3 eye, const SurfaceLayerLookup& layerOf,
                            std::vector<PlanetInstance>& instances);

struct SceneLight {
    Vec3 position; // in scene coordinates
    Color color;
};

// The first visible light in scene order; none when the scene has no visible light.
std::optional<SceneLight> findLight(const SceneNode& root);

} // namespace orrery::render
