#pragma once

#include "core/settings/Settings.h"
#include "core/settings/SettingsReaders.h"

#include <array>
#include <filesystem>

namespace orrery {

// What the Preferences sheet shows and saves: the two folders, the export format and
// compression, and the twelve general switches.
struct PreferencesValues {
    std::filesystem::path openFolder;
    std::filesystem::path exportFolder;
    int formatRow = 0;
    int compression = kDefaultCompression;
    std::array<bool, kGeneralSwitchCount> general{};
};

// The stored values as the sheet shows them: a folder that is unset or gone is the
// documents folder, and the folders shown are also what the Preferences list holds from
// now on (positions 0 and 1, in memory only).
PreferencesValues shownPreferences(Settings& settings, const std::filesystem::path& documents);

// Writes every value of the sheet to Preferences and General, then reads both tables again
// so that the lists match what is stored.
void savePreferences(Settings& settings, const PreferencesValues& values);

// Where the panel for choosing another folder starts: the folder shown while it is still
// there, else the documents folder.
std::filesystem::path folderPanelStart(const std::filesystem::path& shown,
                                       const std::filesystem::path& documents);

} // namespace orrery
