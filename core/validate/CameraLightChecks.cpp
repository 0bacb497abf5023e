#include "core/validate/CameraLightChecks.h"

#include "core/validate/Validators.h"

#include <algorithm>
#include <string_view>

namespace orrery {
namespace {

using Check = bool (*)(std::string_view);

constexpr std::array<Check, cameraField::count> kCameraChecks{
    validateFov, validateFov, validatePosNegFloat, validatePosNegFloat, validatePosOnlyFloat};
constexpr std::array<Check, lightField::count> kLightChecks{
    validatePosNegFloat, validatePosNegFloat, validatePosNegFloat};

template <std::size_t N>
FieldChecks<N> checkFields(const std::array<Check, N>& checks,
                           std::span<const std::string, N> texts) {
    FieldChecks<N> result;
    for (std::size_t i = 0; i < N; ++i)
        result.valid[i] = checks[i](texts[i]);
    result.all = std::ranges::all_of(result.valid, [](bool valid) { return valid; });
    return result;
}

} // namespace

FieldChecks<cameraField::count>
checkCameraFields(std::span<const std::string, cameraField::count> texts) {
    return checkFields(kCameraChecks, texts);
}

FieldChecks<lightField::count>
checkLightFields(std::span<const std::string, lightField::count> texts) {
    return checkFields(kLightChecks, texts);
}

} // namespace orrery
