#include "core/export/PackageScene.h"

#include "core/model/TextNumber.h"
#include "core/scene/PlanetNodes.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace orrery {

DocumentSize packageDocumentSize(const OpenedProject& project) {
    if (!project.checks.width || !project.checks.height)
        return {};
    return {static_cast<int>(integerValue(project.settings[setting::width])),
            static_cast<int>(integerValue(project.settings[setting::height]))};
}

long packageBackground(const OpenedProject& project) {
    if (!project.checks.background)
        return 0;
    return static_cast<long>(integerValue(project.settings[setting::background]));
}

namespace {

// Where the package's camera stands, when all five of its values pass.
std::optional<Vec3> packageEye(const OpenedProject& project) {
    if (!project.checks.camera)
        return std::nullopt;
    const auto& s = project.settings;
    const std::size_t c = setting::cameraXFov;
    return Vec3{floatValue(s[c + 2]), floatValue(s[c + 3]), floatValue(s[c + 4])};
}

} // namespace

SceneNodeBatch packagePlanetNodes(const OpenedProject& project) {
    SceneNodeBatch nodes;
    for (const PlanetRecord& planet : project.planets)
        nodes.append(makePlanetNode(planet.tsecs, planet.color, integerValue(planet.styleindex),
                                    integerValue(planet.surfaceindex), planet.xvalue, planet.yvalue,
                                    planet.zvalue, planet.radius));
    // A scene's root stands at the origin.
    if (const std::optional<Vec3> eye = packageEye(project))
        nodes.setDepthRange(
            std::make_shared<SceneDepthRange>(SceneDepthRange::prepared(nodes, Vec3{}, *eye)));
    return nodes;
}

SceneNodeBatch applyPackageToScene(SceneView& view, const OpenedProject& project,
                                   SceneNodeBatch planets) {
    const auto& s = project.settings;
    if (const std::optional<Vec3> eye = packageEye(project)) {
        const std::size_t c = setting::cameraXFov;
        view.updateCamera(floatValue(s[c]), floatValue(s[c + 1]), eye->x, eye->y, eye->z,
                          project.orthographic, project.zRange);
    }
    if (project.checks.light) {
        const std::size_t l = setting::lightX;
        view.updateLight(s[l], s[l + 1], s[l + 2]);
    }
    view.updateLightColor(project.lightColor);
    return view.replacePlanets(std::move(planets));
}

void loadPackageScene(SceneView& view, const OpenedProject& project) {
    applyPackageToScene(view, project, packagePlanetNodes(project));
    const DocumentSize size = packageDocumentSize(project);
    view.setViewSize(size.width, size.height);
}

ProjectDocument projectDocument(const SceneView& view, const PlanetList& planets, std::string width,
                                std::string height, long background, Color lightColor) {
    ProjectDocument document;
    document.documentWidth = std::move(width);
    document.documentHeight = std::move(height);
    document.background = background;
    const std::vector<std::string> camera = view.getCameraSettings();
    std::copy(camera.begin(), camera.end(), document.cameraSettings.begin());
    const Vec3 light = view.getLightPosition();
    document.lightPosition = {light.x, light.y, light.z};
    document.lightColor = lightColor;
    document.planets = planets.records();
    return document;
}

} // namespace orrery
