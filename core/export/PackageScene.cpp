#include "core/export/PackageScene.h"

#include "core/model/TextNumber.h"

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

void loadPackageScene(SceneView& view, const OpenedProject& project) {
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
    for (const PlanetRecord& planet : project.planets)
        view.createPlanet2(planet.tsecs, planet.color, integerValue(planet.styleindex),
                           integerValue(planet.surfaceindex), planet.xvalue, planet.yvalue,
                           planet.zvalue, planet.radius);
    const DocumentSize size = packageDocumentSize(project);
    view.setViewSize(size.width, size.height);
}

} // namespace orrery
