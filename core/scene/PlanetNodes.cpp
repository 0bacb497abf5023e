#include "core/scene/PlanetNodes.h"

#include "core/model/TextNumber.h"
#include "core/styles/SurfaceNames.h"

namespace orrery {

std::string planetNodeName(std::string_view tsecs) {
    std::string name = "planet";
    name.append(tsecs);
    return name;
}

std::optional<Material> planetMaterial(Color color, std::int64_t styleIndex,
                                       std::int64_t surfaceIndex, float radius) {
    if (surfaceIndex < 1)
        return std::nullopt;
    Material material;
    material.emission = surfaceName(static_cast<long>(surfaceIndex));
    if (styleIndex < 1) {
        material.diffuse = color;
    } else {
        const double side = static_cast<double>(radius) * kTwoPi;
        material.diffuse = GradientTexture{styleIndex, side, side, kGradientAngle};
    }
    return material;
}

double sceneNumber(std::string_view text) {
    return static_cast<double>(floatValue(text));
}

std::shared_ptr<SceneNode> makePlanetNode(std::string_view tsecs, Color color,
                                          std::int64_t styleIndex, std::int64_t surfaceIndex,
                                          std::string_view x, std::string_view y,
                                          std::string_view z, std::string_view radius) {
    const float r = floatValue(radius);
    auto node = SceneNode::create();
    node->setSphere(
        Sphere{static_cast<double>(r), planetMaterial(color, styleIndex, surfaceIndex, r)});
    node->setName(planetNodeName(tsecs));
    node->setPosition({sceneNumber(x), sceneNumber(y), sceneNumber(z)});
    return node;
}

} // namespace orrery
