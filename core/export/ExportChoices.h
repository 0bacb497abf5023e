#pragma once

#include "core/export/ExportFormat.h"
#include "core/model/PlanetList.h"
#include "core/settings/SettingsReaders.h"

#include <string_view>
#include <vector>

// The rules that set up the export question and the save panel from the stored
// preferences and the current system.
namespace orrery {

// The row the format question starts on, from Preferences position 2. The Preferences
// window stores its own row 0 to 5 there, but the question reads the number as row + 1:
// "2" (JPEG there) starts on GIF, and empty or "0" starts on PNG. The two readers
// disagree on purpose. A value that names no row (text, 7, -3) also starts on PNG.
ExportFormat defaultExportFormat(std::string_view storedFormat);

// The compression slider's start value 0 to 100 from Preferences position 3: empty or
// "0" means 85; other values are clamped to the slider's range.
int defaultCompression(std::string_view storedCompression);

// The compression factor handed to the encoders: the slider value / 100, single precision.
float compressionFactor(int sliderValue);

// Export is offered while at least one planet is shown (state "1").
bool canExport(const std::vector<PlanetRecord>& planets);
inline bool canExport(const PlanetList& planets) {
    return canExport(planets.records());
}

// The include-background check box of the question: usable only when a background colour
// is chosen, and then on when the general preference (General position 3) is "1".
struct IncludeBackgroundChoice {
    bool enabled = false;
    bool on = false;
};
IncludeBackgroundChoice includeBackgroundChoice(long currentBackground,
                                                std::string_view includePreference);

} // namespace orrery
