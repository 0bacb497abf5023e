#include "core/export/ExportChoices.h"

#include <algorithm>

namespace orrery {

float compressionFactor(int sliderValue) {
    return static_cast<float>(std::clamp(sliderValue, 0, 100)) / 100.0f;
}

bool canExport(const std::vector<PlanetRecord>& planets) {
    return std::any_of(planets.begin(), planets.end(),
                       [](const PlanetRecord& planet) { return planet.state == "1"; });
}

IncludeBackgroundChoice includeBackgroundChoice(long currentBackground,
                                                std::string_view includePreference) {
    if (currentBackground == 0)
        return {};
    return {true, includePreference == "1"};
}

} // namespace orrery
