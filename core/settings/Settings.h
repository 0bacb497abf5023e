#pragma once

#include "core/app/AppPaths.h"

#include <string>
#include <string_view>
#include <vector>

namespace orrery {

// The three settings lists and the operations that fill and write them. The lists hold the
// value column of tables Windows, Preferences and General in row order; readers address them
// by position (see SettingsReaders.h), writers by field name.
class Settings {
public:
    explicit Settings(AppPaths paths) : paths_(std::move(paths)) {}

    const AppPaths& paths() const { return paths_; }

    // Each creates its database with the default rows when its file is missing.
    void openCreateDB0();
    void openCreateDB1();
    void openCreateDB2();

    // Read a whole table into its list (appending).
    void readWindows();
    void readPreferences();
    void readGeneral();
    // Reads Preferences once more, appending a second copy behind the first, as start-up
    // always has; positions 0 to 98 stay those of the first read.
    void setMain() { readPreferences(); }

    // Write one row by field name.
    void saveData0(std::string_view value, std::string_view field);
    void saveData1(std::string_view value, std::string_view field);
    void saveData2(std::string_view value, std::string_view field);

    // Replace one entry of a list in memory only; an index past the end changes nothing.
    void editData1(std::size_t index, std::string value);
    void editData2(std::size_t index, std::string value);

    // Empty Preferences and General and read them again (after the Preferences sheet saves).
    void reloadPreferencesAndGeneral();

    std::vector<std::string> windowArray;
    std::vector<std::string> preferenceArray;
    std::vector<std::string> checkboxArray;

private:
    AppPaths paths_;
};

// Start-up's settings steps, in their fixed order: create the application folder, create
// any missing database, read General, Preferences and Windows, then setMain.
void runSettingsStartup(Settings& settings);

} // namespace orrery
