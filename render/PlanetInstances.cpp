#include "render/PlanetInstances.h"

#include "render/ColorSpace.h"
#include "render/GradientRamps.h"

#include <algorithm>
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

PlanetInstance instanceOf(const Sphere& sphere, Vec3 center, const SurfaceLayerLookup& layerOf) {
    PlanetInstance instance{};
    instance.center[0] = static_cast<float>(center.x);
    instance.center[1] = static_cast<float>(center.y);
    instance.center[2] = static_cast<float>(center.z);
    instance.radius = static_cast<float>(sphere.radius);
    instance.rampRow = -1.0f;
    instance.surfaceLayer = -1.0f;
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
    if (!material.emission.empty())
        instance.surfaceLayer = static_cast<float>(layerOf(material.emission));
    return instance;
}

// The power of the eye with respect to the sphere. For spheres that do not intersect, the
// one with the smaller power lies on the eye's side of their radical plane, which
// separates them: any ray from the eye meets it first. Ties keep scene order.
float power(const PlanetInstance& planet) {
    const float* c = planet.center;
    return c[0] * c[0] + c[1] * c[1] + c[2] * c[2] - planet.radius * planet.radius;
}

void collect(const SceneNode& node, Vec3 origin, Vec3 eye, const SurfaceLayerLookup& layerOf,
             std::vector<PlanetInstance>& instances) {
    for (const auto& child : node.children()) {
        if (child->isHidden())
            continue;
        const Vec3 world = origin + child->position();
        const auto& sphere = child->sphere();
        if (sphere && sphere->radius > 0.0)
            instances.push_back(instanceOf(*sphere, world - eye, layerOf));
        if (child->childCount() > 0)
            collect(*child, world, eye, layerOf, instances);
    }
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

void collectPlanetInstances(const SceneNode& root, Vec3 eye, const SurfaceLayerLookup& layerOf,
                            std::vector<PlanetInstance>& instances) {
    instances.clear();
    collect(root, root.position(), eye, layerOf, instances);
    std::stable_sort(
        instances.begin(), instances.end(),
        [](const PlanetInstance& a, const PlanetInstance& b) { return power(a) > power(b); });
}

void groupPlanetDraws(const std::vector<PlanetInstance>& instances,
                      std::vector<PlanetDraw>& draws) {
    draws.clear();
    const auto textured = [&instances](std::size_t i) {
        return instances[i].rampRow >= 0.0f || instances[i].surfaceLayer >= 0.0f;
    };
    for (std::size_t first = 0; first < instances.size();) {
        std::size_t end = first + 1;
        while (end < instances.size() && textured(end) == textured(first))
            ++end;
        const std::size_t count = end - first;
        const bool joinsTextured =
            textured(first) || (count < kShortestPlainDraw && count < instances.size());
        if (!draws.empty() && draws.back().textured == joinsTextured)
            draws.back().count += count;
        else
            draws.push_back(PlanetDraw{first, count, joinsTextured});
        first = end;
    }
}

std::optional<SceneLight> findLight(const SceneNode& root) {
    return firstLight(root, root.position());
}

} // namespace orrery::render
