#pragma once

#include "core/model/Color.h"
#include "core/scene/SceneNode.h"
#include "core/scene/Vec3.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orrery::render {

// What the GPU gets per planet: 44 bytes, whatever the radius.
struct PlanetInstance {
    float center[3]; // relative to the eye, so that large coordinates keep their precision
    float radius;
    float color[4];     // linear diffuse colour, straight alpha; used when rampRow < 0
    float rampRow;      // row of the gradient ramp texture, or -1
    float surfaceLayer; // layer of the surface texture array, or -1 for no emission
    float surfaceTurn;  // how far the surface has turned west to east, in whole turns
};
static_assert(sizeof(PlanetInstance) == 44);

// Maps a surface image name to its texture layer, -1 when there is no such image; none when
// the layer cannot be had without a pass over the whole scene.
using SurfaceLayerLookup = std::function<std::optional<int>(const std::string& surfaceName)>;

// The instance of a sphere whose centre lies at `center` relative to the eye; none when
// `layerOf` gives no layer for its surface.
std::optional<PlanetInstance> planetInstance(const Sphere& sphere, Vec3 center,
                                             const SurfaceLayerLookup& layerOf);

// Where a planet comes from: its node, as an identity to compare (see SceneChange), and its
// place in scene order: the root's child it belongs to, then depth first below that child.
struct PlanetOrigin {
    const SceneNode* node = nullptr;
    std::uint64_t branch = 0; // the root's child's SceneNode::siblingOrder
    std::uint32_t within = 0; // 0 for the root's child itself
};

// Whether planet a is drawn before planet b: farther first, ties in scene order.
bool drawnBefore(const PlanetInstance& a, const PlanetOrigin& originA, const PlanetInstance& b,
                 const PlanetOrigin& originB);

// Every sphere that can show (not hidden, no hidden ancestor, radius above 0) in the order
// drawnBefore gives, replacing the contents of `instances` and beside them `origins`. Drawn in
// this order, a nearer planet's soft edge always blends over the planets behind it. The time
// taken grows in proportion to the number of planets: the order comes from a radix sort.
void collectPlanetInstances(const SceneNode& root, Vec3 eye, const SurfaceLayerLookup& layerOf,
                            std::vector<PlanetInstance>& instances,
                            std::vector<PlanetOrigin>& origins);

// collectPlanetInstances in steps, so that a window can take in a scene of 100,000 planets
// over several frames and answer between them. The scene must not change from begin to the
// last step. The memory of one collection serves the next.
class PlanetCollection {
public:
    void begin(const SceneNode& root, Vec3 eye);
    // Collects the planets below the root's next children, each child with everything below
    // it, until at least `nodes` nodes were looked at; true once the whole scene is collected.
    bool step(const SurfaceLayerLookup& layerOf, std::size_t nodes);
    // After the last step: the planets in drawnBefore order, replacing the contents of both.
    void finish(std::vector<PlanetInstance>& instances, std::vector<PlanetOrigin>& origins);

private:
    struct Keyed {
        std::uint32_t key;
        std::uint32_t index;
    };
    const SceneNode* root_ = nullptr;
    SceneNode::ChildList::const_iterator next_;
    Vec3 eye_;
    std::vector<PlanetInstance> instances_; // in scene order
    std::vector<PlanetOrigin> origins_;
    std::vector<Keyed> order_; // the sort's two buffers
    std::vector<Keyed> sorted_;
};

struct SceneLight {
    Vec3 position; // in scene coordinates
    Color color;
};

// The first visible light in scene order; none when the scene has no visible light.
std::optional<SceneLight> findLight(const SceneNode& root);

} // namespace orrery::render
