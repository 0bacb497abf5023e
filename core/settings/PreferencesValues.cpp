#include "core/settings/PreferencesValues.h"

#include <string>
#include <system_error>

namespace orrery {
namespace {

std::string generalField(int number) {
    return (number < 10 ? "Value0" : "Value") + std::to_string(number);
}

} // namespace

PreferencesValues shownPreferences(Settings& settings, const std::filesystem::path& documents) {
    PreferencesValues values;
    values.openFolder = openFolder(settings.preferenceArray, documents);
    values.exportFolder = exportFolder(settings.preferenceArray, documents);
    settings.editData1(0, values.openFolder.string());
    settings.editData1(1, values.exportFolder.string());
    values.formatRow = preferredFormatRow(settings.preferenceArray);
    values.compression = compressionPercent(settings.preferenceArray);
    for (int number = 1; number <= kGeneralSwitchCount; ++number)
        values.general[static_cast<std::size_t>(number - 1)] =
            generalSwitch(settings.checkboxArray, number);
    return values;
}

void savePreferences(Settings& settings, const PreferencesValues& values) {
    settings.saveData1(values.openFolder.string(), "Value01");
    settings.saveData1(values.exportFolder.string(), "Value02");
    settings.saveData1(std::to_string(values.formatRow), "Value03");
    settings.saveData1(std::to_string(values.compression), "Value04");
    for (int number = 1; number <= kGeneralSwitchCount; ++number)
        settings.saveData2(values.general[static_cast<std::size_t>(number - 1)] ? "1" : "0",
                           generalField(number));
    settings.reloadPreferencesAndGeneral();
    settings.setMain();
}

std::filesystem::path folderPanelStart(const std::filesystem::path& shown,
                                       const std::filesystem::path& documents) {
    std::error_code error;
    return !shown.empty() && std::filesystem::is_directory(shown, error) ? shown : documents;
}

} // namespace orrery
