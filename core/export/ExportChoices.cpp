#include "core/export/ExportChoices.h"

#include "core/settings/SettingsReaders.h"

#include <algorithm>

namespace orrery {

float compressionFactor(int sliderValue) {
    return static_cast<float>(std::clamp(sliderValue, 0, 100)) / 100.0f;
}

bool canExport(const std::vector<PlanetRecord>& planets) {
    return std::any_of(planets.begin(), planets.end(), isShown);
}

IncludeBackgroundChoice includeBackgroundChoice(long currentBackground,
                                                const std::vector<std::string>& general) {
    if (currentBackground == 0)
        return {};
    return {true, generalText(general, GeneralSwitch::includeBackground) == "1"};
}

} // namespace orrery
