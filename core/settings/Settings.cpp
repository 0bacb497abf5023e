#include "core/settings/Settings.h"

#include "core/settings/SettingsDatabase.h"

namespace orrery {

void Settings::openCreateDB0() {
    createSettingsFileIfMissing(paths_.filePath0, windowsTable());
}
void Settings::openCreateDB1() {
    createSettingsFileIfMissing(paths_.filePath1, preferencesTable());
}
void Settings::openCreateDB2() {
    createSettingsFileIfMissing(paths_.filePath2, generalTable());
}

void Settings::readWindows() {
    readSettings(paths_.filePath0, windowsTable(), windowArray);
}
void Settings::readPreferences() {
    readSettings(paths_.filePath1, preferencesTable(), preferenceArray);
}
void Settings::readGeneral() {
    readSettings(paths_.filePath2, generalTable(), checkboxArray);
}

void Settings::saveData0(std::string_view value, std::string_view field) {
    saveSetting(paths_.filePath0, windowsTable(), value, field);
}
void Settings::saveData1(std::string_view value, std::string_view field) {
    saveSetting(paths_.filePath1, preferencesTable(), value, field);
}
void Settings::saveData2(std::string_view value, std::string_view field) {
    saveSetting(paths_.filePath2, generalTable(), value, field);
}

void Settings::editData1(std::size_t index, std::string value) {
    if (index < preferenceArray.size())
        preferenceArray[index] = std::move(value);
}
void Settings::editData2(std::size_t index, std::string value) {
    if (index < checkboxArray.size())
        checkboxArray[index] = std::move(value);
}

void Settings::reloadPreferencesAndGeneral() {
    preferenceArray.clear();
    checkboxArray.clear();
    readPreferences();
    readGeneral();
}

void runSettingsStartup(Settings& settings) {
    createAppFolder(settings.paths().filePathA);
    settings.openCreateDB0();
    settings.openCreateDB1();
    settings.openCreateDB2();
    settings.readGeneral();
    settings.readPreferences();
    settings.readWindows();
    settings.setMain();
}

} // namespace orrery
