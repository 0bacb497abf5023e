#include "core/export/ExportChoices.h"

#include "core/model/TextNumber.h"

#include <algorithm>

namespace orrery {

ExportFormat defaultExportFormat(std::string_view storedFormat) {
    if (storedFormat.empty() || storedFormat == "0")
        return ExportFormat::png;
    return formatForRow(integerValue(storedFormat) - 1).value_or(ExportFormat::png);
}

int defaultCompression(std::string_view storedCompression) {
    if (storedCompression.empty() || storedCompression == "0")
        return kDefaultCompression;
    return static_cast<int>(std::clamp<std::int64_t>(integerValue(storedCompression), 0, 100));
}

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
