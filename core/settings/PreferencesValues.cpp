#include "core/settings/PreferencesValues.h"

#include <string>
#include <system_error>

namespace orrery {
PreferencesValues shownPreferences(Settings& settings, const std::filesystem::path& documents) {
    PreferencesValues values;
    values.openFolder = openFolder(settings.preferenceArray, documents);
    values.exportFolder = exportFolder(settings.preferenceArray, documents);
    settings.editData1(0, values.openFolder.string());
    settings.editData1(1, values.exportFolder.string());
    values.formatRow = preferredFormatRow(settings.preferenceArray);
    values.compression = compressionPercent(settings.preferenceArray);
    for (std::size_t i = 0; i < kGeneralSwitchCount; ++i)
        values.general[i] = generalSwitch(settings.checkboxArray, static_cast<GeneralSwitch>(i));
    return values;
}

void savePreferences(Settings& settings, const PreferencesValues& values) {
    settings.saveData1(values.openFolder.string(), "Value01");
    settings.saveData1(values.exportFolder.string(), "Value02");
    settings.saveData1(std::to_string(values.formatRow), "Value03");
    settings.saveData1(std::to_string(values.compression), "Value04");
    for (std::size_t i = 0; i < kGeneralSwitchCount; ++i)
        settings.saveData2(values.general[i] ? "1" : "0",
                           generalField(static_cast<GeneralSwitch>(i)));
    settings.reloadPreferencesAndGeneral();
    settings.setMain();
}

std::filesystem::path folderPanelStart(const std::filesystem::path& shown,
                                       const std::filesystem::path& documents) {
    std::error_code error;
    return !shown.empty() && std::filesystem::is_directory(shown, error) ? shown : documents;
}

} // namespace orrery
