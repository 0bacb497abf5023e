#pragma once

#include "core/export/ExportFormat.h"
#include "core/model/PlanetList.h"

#include <string>
#include <vector>

// The rules that set up the export question and the save panel from the stored
// preferences and the current system.
namespace orrery {

// The format question's first row and the slider's start value come from the stored
// preferences (exportQuestionFormatRow and compressionPercent in SettingsReaders.h).

// The compression factor handed to the encoders: the slider value / 100, single precision.
float compressionFactor(int sliderValue);

// Export is offered while at least one planet is shown (state "1").
bool canExport(const std::vector<PlanetRecord>& planets);
inline bool canExport(const PlanetList& planets) {
    return canExport(planets.records());
}

// The include-background check box of the question: usable only when a background colour
// is chosen, and then on when its general switch holds exactly "1".
struct IncludeBackgroundChoice {
    bool enabled = false;
    bool on = false;
};
IncludeBackgroundChoice includeBackgroundChoice(long currentBackground,
                                                const std::vector<std::string>& general);

} // namespace orrery
