#include "core/settings/Settings.h"
#include "core/settings/PreferencesValues.h"
#include "core/settings/SettingsDatabase.h"
#include "core/support/Log.h"
#include "tests/core/settings/SettingsFolder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>

namespace orrery {
namespace {

namespace fs = std::filesystem;

bool allZero(const std::vector<std::string>& values) {
    for (const std::string& v : values)
        if (v != "0")
            return false;
    return true;
}

TEST_F(SettingsFiles, FirstStartCreatesThreeTablesOfDefaults) {
    const Settings settings = startUp();
    for (const char* name : {"Data0.data", "Data1.data", "Data2.data"})
        EXPECT_TRUE(fs::is_regular_file(appFolder() / name)) << name;
    EXPECT_FALSE(fs::exists(appFolder() / "Presets"));
    EXPECT_FALSE(fs::exists(appFolder() / "Data1.data.new"));

    EXPECT_EQ(settings.windowArray.size(), 12u);
    EXPECT_EQ(settings.checkboxArray.size(), 24u);
    // Preferences is read twice at start; the second copy stands behind the first.
    EXPECT_EQ(settings.preferenceArray.size(), 2 * 99u);
    EXPECT_TRUE(allZero(settings.windowArray));
    EXPECT_TRUE(allZero(settings.preferenceArray));
    EXPECT_TRUE(allZero(settings.checkboxArray));
}

TEST_F(SettingsFiles, RowsKeepTheirFieldsInOrder) {
    startUp();
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open((appFolder() / "Data0.data").c_str(), &db), SQLITE_OK);
    sqlite3_stmt* statement = nullptr;
    ASSERT_EQ(
        sqlite3_prepare_v2(db, "SELECT field FROM Windows ORDER BY ID", -1, &statement, nullptr),
        SQLITE_OK);
    std::vector<std::string> fields;
    while (sqlite3_step(statement) == SQLITE_ROW)
        fields.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    sqlite3_close(db);
    EXPECT_EQ(fields,
              (std::vector<std::string>{"Width0", "Height0", "Left0", "Top0", "Width1", "Height1",
                                        "Left1", "Top1", "Width2", "Height2", "Left2", "Top2"}));
    EXPECT_EQ(preferencesTable().fields.back(), "Value99");
    EXPECT_EQ(generalTable().fields.front(), "Value01");
}

TEST_F(SettingsFiles, SavedValuesSurviveTheNextStart) {
    {
        Settings settings = startUp();
        settings.saveData1("40", "Value04");
        settings.saveData2("1", "Value02");
        settings.saveData0("812.5", "Width0");
    }
    const Settings settings = startUp();
    EXPECT_EQ(settings.preferenceArray[3], "40");
    EXPECT_EQ(settings.preferenceArray[99 + 3], "40");
    EXPECT_EQ(settings.checkboxArray[1], "1");
    EXPECT_EQ(settings.windowArray[0], "812.5");
}

TEST_F(SettingsFiles, DeletingOneFileRecreatesOnlyThatTable) {
    {
        Settings settings = startUp();
        settings.saveData0("700", "Width0");
        settings.saveData1("55", "Value04");
        settings.saveData2("1", "Value01");
    }
    fs::remove(appFolder() / "Data1.data");
    const Settings settings = startUp();
    EXPECT_EQ(settings.windowArray[0], "700");
    EXPECT_EQ(settings.checkboxArray[0], "1");
    EXPECT_EQ(settings.preferenceArray[3], "0");
}

TEST_F(SettingsFiles, UnknownFieldChangesNothing) {
    Settings settings = startUp();
    std::vector<std::string> messages;
    const LogSink previous = setLogSink([&](std::string_view m) { messages.emplace_back(m); });
    settings.saveData2("1", "Value99");
    setLogSink(previous);
    EXPECT_TRUE(messages.empty());
    std::vector<std::string> general;
    readSettings(settings.paths().filePath2, generalTable(), general);
    EXPECT_TRUE(allZero(general));
}

TEST_F(SettingsFiles, AnUnwritableFolderLeavesTheListsEmpty) {
    fs::create_directories(folder_);
    std::ofstream(folder_ / "share") << "a file where the folder should be";
    const Settings settings = startUp();
    EXPECT_TRUE(settings.windowArray.empty());
    EXPECT_TRUE(settings.preferenceArray.empty());
    EXPECT_TRUE(settings.checkboxArray.empty());
}

TEST_F(SettingsFiles, SavingToAMissingFileDoesNotCreateIt) {
    Settings settings(AppPaths::inFolder(appFolder()));
    settings.saveData1("1", "Value01");
    std::vector<std::string> list{"kept"};
    readSettings(settings.paths().filePath1, preferencesTable(), list);
    EXPECT_FALSE(fs::exists(settings.paths().filePath1));
    EXPECT_EQ(list, std::vector<std::string>{"kept"});
}

TEST_F(SettingsFiles, EditsInMemoryAndReload) {
    Settings settings = startUp();
    settings.editData1(0, "/somewhere");
    settings.editData2(11, "1");
    settings.editData2(500, "1"); // past the end: nothing happens
    EXPECT_EQ(settings.preferenceArray[0], "/somewhere");
    EXPECT_EQ(settings.checkboxArray[11], "1");
    settings.reloadPreferencesAndGeneral();
    EXPECT_EQ(settings.preferenceArray.size(), 99u);
    EXPECT_EQ(settings.preferenceArray[0], "0");
    EXPECT_EQ(settings.checkboxArray[11], "0");
}

// What the Preferences sheet saves is what the next start shows; a stored folder that has
// gone since shows as the documents folder.
TEST_F(SettingsFiles, PreferencesSavedAreShownAtTheNextStart) {
    Settings settings = startUp();
    const fs::path documents = folder_ / "Documents";
    const fs::path pictures = folder_ / "Pictures";
    fs::create_directories(pictures);
    PreferencesValues values = shownPreferences(settings, documents);
    EXPECT_EQ(values.openFolder, documents);
    EXPECT_EQ(values.compression, 85);
    EXPECT_EQ(settings.preferenceArray[0], documents.string());

    values.openFolder = folder_ / "Gone";
    values.exportFolder = pictures;
    values.formatRow = 5;
    values.compression = 40;
    values.general[1] = true;
    values.general[11] = true;
    savePreferences(settings, values);
    EXPECT_EQ(settings.preferenceArray.size(), 2 * 99u);
    EXPECT_EQ(settings.checkboxArray[1], "1");

    Settings next = startUp();
    const PreferencesValues shown = shownPreferences(next, documents);
    EXPECT_EQ(shown.openFolder, documents);
    EXPECT_EQ(shown.exportFolder, pictures);
    EXPECT_EQ(shown.formatRow, 5);
    EXPECT_EQ(shown.compression, 40);
    EXPECT_EQ(shown.general, values.general);
    EXPECT_EQ(next.checkboxArray[12], "0"); // the spare rows are left alone
}

} // namespace
} // namespace orrery
