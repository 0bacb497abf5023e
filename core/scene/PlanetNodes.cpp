#include "core/scene/PlanetNodes.h"

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

} // namespace orrery
