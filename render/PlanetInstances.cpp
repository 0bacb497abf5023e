#include "render/PlanetInstances.h"

#include "render/ColorSpace.h"
#include "render/GradientRamps.h"

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <variant>

namespace orrery::render {
namespace {

// A style without gradient draws a fully transparent texture.
constexpr Color kNoGradient{0.0, 0.0, 0.0, 0.0};

void setColor(PlanetInstance& instance, const Color& color) {
    instance.color[0] = static_cast<float>(srgbToLinear(color.red));
    instance.color[1] = static_cast<float>(srgbToLinear(color.green));
    instance.color[2] = static_cast<float>(srgbToLinear(color.blue));
    instance.color[3] = static_cast<float>(color.alpha);
}

} // namespace

std::optional<PlanetInstance> planetInstance(const Sphere& sphere, Vec3 center,
                                             const SurfaceLayerLookup& layerOf) {
    PlanetInstance instance{};
    instance.center[0] = static_cast<float>(center.x);
    instance.center[1] = static_cast<float>(center.y);
    instance.center[2] = static_cast<float>(center.z);
    instance.radius = static_cast<float>(sphere.radius);
    instance.rampRow = -1.0f;
    instance.surfaceLayer = -1.0f;
    instance.surfaceTurn = static_cast<float>(sphere.turn);
    if (!sphere.material) {
        setColor(instance, kWhite);
        return instance;
    }
    const Material& material = *sphere.material;
    if (const auto* gradient = std::get_if<GradientTexture>(&material.diffuse)) {
        const int row = gradientRampRow(gradient->style);
        instance.rampRow = static_cast<float>(row);
        setColor(instance, row < 0 ? kNoGradient : kWhite);
    } else {
        setColor(instance, std::get<Color>(material.diffuse));
    }
    if (!material.emission.empty()) {
        const std::optional<int> layer = layerOf(material.emission);
        if (!layer)
            return std::nullopt;
        instance.surfaceLayer = static_cast<float>(*layer);
    }
    return instance;
}

namespace {

// The power of the eye with respect to the sphere. For spheres that do not intersect, the
// one with the smaller power lies on the eye's side of their radical plane, which
// separates them: any ray from the eye meets it first.
float power(const PlanetInstance& planet) {
    const float* c = planet.center;
    return c[0] * c[0] + c[1] * c[1] + c[2] * c[2] - planet.radius * planet.radius;
}

// A key whose unsigned order is the descending order of the power: the bits of a float
// order like the number once negative values have all their bits flipped and positive
// ones their sign bit.
std::uint32_t farthestFirstKey(const PlanetInstance& planet) {
    const std::uint32_t bits = std::bit_cast<std::uint32_t>(power(planet));
    const std::uint32_t ascending = (bits & 0x80000000u) != 0 ? ~bits : bits | 0x80000000u;
    return ~ascending;
}

struct Collection {
    Vec3 eye;
    const SurfaceLayerLookup& layerOf;
    std::vector<PlanetInstance>& instances;
    std::vector<PlanetOrigin>& origins;
    std::size_t visited = 0;
};

void collect(const SceneNode& node, Vec3 origin, std::uint64_t branch, std::uint32_t& within,
             Collection& into) {
    ++into.visited;
    if (node.isHidden())
        return;
    const Vec3 world = origin + node.position();
    const auto& sphere = node.sphere();
    if (sphere && sphere->radius > 0.0) {
        // A pass over the whole scene is always given a layer.
        if (const auto instance = planetInstance(*sphere, world - into.eye, into.layerOf)) {
            into.instances.push_back(*instance);
            into.origins.push_back({&node, branch, within});
        }
    }
    ++within;
    for (const auto& child : node.children())
        collect(*child, world, branch, within, into);
}

std::optional<SceneLight> firstLight(const SceneNode& node, Vec3 origin) {
    for (const auto& child : node.children()) {
        if (child->isHidden())
            continue;
        const Vec3 world = origin + child->position();
        if (child->light())
            return SceneLight{world, child->light()->color};
        if (child->childCount() > 0)
            if (auto light = firstLight(*child, world))
                return light;
    }
    return std::nullopt;
}

} // namespace

bool drawnBefore(const PlanetInstance& a, const PlanetOrigin& originA, const PlanetInstance& b,
                 const PlanetOrigin& originB) {
    const std::uint32_t keyA = farthestFirstKey(a);
    const std::uint32_t keyB = farthestFirstKey(b);
    if (keyA != keyB)
        return keyA < keyB;
    if (originA.branch != originB.branch)
        return originA.branch < originB.branch;
    return originA.within < originB.within;
}

void collectPlanetInstances(const SceneNode& root, Vec3 eye, const SurfaceLayerLookup& layerOf,
                            std::vector<PlanetInstance>& instances,
                            std::vector<PlanetOrigin>& origins) {
    PlanetCollection collection;
    collection.begin(root, eye);
    collection.step(layerOf, std::numeric_limits<std::size_t>::max());
    collection.finish(instances, origins);
}

void PlanetCollection::begin(const SceneNode& root, Vec3 eye) {
    root_ = &root;
    next_ = root.children().begin();
    eye_ = eye;
    instances_.clear();
    origins_.clear();
}

bool PlanetCollection::step(const SurfaceLayerLookup& layerOf, std::size_t nodes) {
    Collection into{eye_, layerOf, instances_, origins_};
    while (next_ != root_->children().end() && into.visited < nodes) {
        const SceneNode& child = **next_++;
        std::uint32_t within = 0;
        collect(child, root_->position(), child.siblingOrder(), within, into);
    }
    return next_ == root_->children().end();
}

// Farthest first, ties in scene order (the order of collection): a least-significant-digit
// radix sort, stable and linear in the number of planets.
void PlanetCollection::finish(std::vector<PlanetInstance>& instances,
                              std::vector<PlanetOrigin>& origins) {
    order_.resize(instances_.size());
    for (std::size_t i = 0; i < instances_.size(); ++i)
        order_[i] = {farthestFirstKey(instances_[i]), static_cast<std::uint32_t>(i)};
    sorted_.resize(order_.size());
    for (unsigned shift = 0; shift < 32; shift += 8) {
        std::array<std::size_t, 257> start{};
        for (const Keyed& k : order_)
            ++start[((k.key >> shift) & 0xFF) + 1];
        for (std::size_t digit = 1; digit < start.size(); ++digit)
            start[digit] += start[digit - 1];
        for (const Keyed& k : order_)
            sorted_[start[(k.key >> shift) & 0xFF]++] = k;
        order_.swap(sorted_);
    }
    instances.resize(order_.size());
    origins.resize(order_.size());
    for (std::size_t i = 0; i < order_.size(); ++i) {
        instances[i] = instances_[order_[i].index];
        origins[i] = origins_[order_[i].index];
    }
}

std::optional<SceneLight> findLight(const SceneNode& root) {
    return firstLight(root, root.position());
}

} // namespace orrery::render
