#include "core/app/CameraLightFields.h"

namespace orrery {
namespace {

constexpr std::size_t kOrthographic = 5;
constexpr std::size_t kZRange = 6;

template <std::size_t N> FieldTexts<N> textsFrom(const auto& list, std::size_t first) {
    FieldTexts<N> texts;
    for (std::size_t i = 0; i < N && first + i < list.size(); ++i)
        texts[i] = list[first + i];
    return texts;
}

} // namespace

CameraFields cameraFields(const std::vector<std::string>& cameraSettings) {
    const auto on = [&](std::size_t i) {
        return i < cameraSettings.size() && cameraSettings[i] == "1";
    };
    return {textsFrom<cameraField::count>(cameraSettings, 0), on(kOrthographic), on(kZRange)};
}

OpenedCamera openedCamera(const OpenedProject& project,
                          const FieldTexts<cameraField::count>& shownTexts) {
    OpenedCamera camera;
    if (project.checks.camera) {
        camera.shown =
            CameraFields{textsFrom<cameraField::count>(project.settings, setting::cameraXFov),
                         project.orthographic, project.zRange};
        camera.valid.fill(true);
    } else {
        camera.valid = checkCameraFields(shownTexts).valid;
    }
    return camera;
}

OpenedLight openedLight(const OpenedProject& project) {
    OpenedLight light;
    if (project.checks.light)
        light.shown = textsFrom<lightField::count>(project.settings, setting::lightX);
    light.valid = project.checks.lightFields;
    return light;
}

} // namespace orrery
