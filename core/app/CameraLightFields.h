#pragma once

#include "core/package/ProjectDocument.h"
#include "core/validate/CameraLightChecks.h"

#include <optional>
#include <string_view>
#include <vector>

// What the camera and light popovers' fields show: the scene's camera, the texts after the
// light's Default button, and what an opened package puts into them.
namespace orrery {

// The camera popover's texts and switches.
struct CameraFields {
    FieldTexts<cameraField::count> texts;
    bool orthographic = false;
    bool zRange = false;
};

// From the scene's camera settings list (x fov, y fov, x, y, z, orthographic, z range, as
// getCameraSettings gives it); a short list shows empty texts and switches off.
CameraFields cameraFields(const std::vector<std::string>& cameraSettings);

// After the light's Default button the z field shows 50 although the light stands at 100
// again, until the popover next opens and shows the real position. This is deliberate.
inline constexpr std::array<std::string_view, lightField::count> kLightDefaultTexts{
    "0.000000", "0.000000", "50.000000"};

// After a package was opened. A camera that passes its checks shows the file's texts and
// switches, all passing; a refused one leaves the fields' texts and switches as they are and
// marks those whose own text fails.
struct OpenedCamera {
    std::optional<CameraFields> shown; // none: the fields keep what they show
    std::array<bool, cameraField::count> valid{};
};
OpenedCamera openedCamera(const OpenedProject& project,
                          const FieldTexts<cameraField::count>& shownTexts);

// A light that passes shows the file's texts; either way each field is marked by the file's
// own value.
struct OpenedLight {
    std::optional<FieldTexts<lightField::count>> shown;
    std::array<bool, lightField::count> valid{};
};
OpenedLight openedLight(const OpenedProject& project);

} // namespace orrery
