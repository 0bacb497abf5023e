#include "core/export/PackageScene.h"

#include "core/model/TextNumber.h"
#include "core/scene/PlanetNodes.h"

#include <algorithm>
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

SceneNodeBatch packagePlanetNodes(const std::vector<PlanetRecord>& planets) {
    SceneNodeBatch nodes;
    for (const PlanetRecord& planet : planets)
        nodes.append(makePlanetNode(planet.tsecs, planet.color, integerValue(planet.styleindex),
                                    integerValue(planet.surfaceindex), planet.xvalue, planet.yvalue,
                                    planet.zvalue, planet.radius));
    return nodes;
}

SceneNodeBatch applyPackageToScene(SceneView& view, const OpenedProject& project,
                                   SceneNodeBatch planets) {
    const auto& s = project.settings;
    if (project.checks.camera) {
        const std::size_t c = setting::cameraXFov;
        view.updateCamera(floatValue(s[c]), floatValue(s[c + 1]), floatValue(s[c + 2]),
                          floatValue(s[c + 3]), floatValue(s[c + 4]), project.orthographic,
                          project.zRange);
    }
    if (project.checks.light) {
        const std::size_t l = setting::lightX;
        view.updateLight(s[l], s[l + 1], s[l + 2]);
    }
    view.updateLightColor(project.lightColor);
    return view.replacePlanets(std::move(planets));
}

void loadPackageScene(SceneView& view, const OpenedProject& project) {
    applyPackageToScene(view, project, packagePlanetNodes(project.planets));
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
