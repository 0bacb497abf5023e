// Each kind of damage a settings file can suffer, made in the file of one table at a time:
// the program starts with the values of a first start and never writes over what it could
// not read, so the user (or a newer version) can still recover the file.
#include "core/settings/PreferencesValues.h"
#include "core/settings/SettingsDatabase.h"
#include "core/support/Log.h"
#include "tests/core/settings/SettingsFolder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/fsuid.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <random>

namespace orrery {
namespace {

namespace fs = std::filesystem;

void makeDatabase(const fs::path& file, const std::string& sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    sqlite3_close(db);
}

void garbage(const fs::path& file, const SettingsTable&) {
    std::ofstream out(file, std::ios::binary);
    std::mt19937 random(7);
    for (int i = 0; i < 4096; ++i)
        out.put(static_cast<char>(random()));
}

void emptyFile(const fs::path& file, const SettingsTable&) {
    std::ofstream{file};
}

void tableMissing(const fs::path& file, const SettingsTable&) {
    makeDatabase(file, "CREATE TABLE Other (field text, value text)");
}

void rowsMissing(const fs::path& file, const SettingsTable& table) {
    makeDatabase(file, std::string(table.createStatement));
}

// Every row there, but its field and value stored as blobs where the table keeps text.
void wrongTypes(const fs::path& file, const SettingsTable& table) {
    const std::string_view select = table.selectStatement;
    const std::string name(select.substr(select.rfind(' ') + 1));
    std::string sql = std::string(table.createStatement) + ";";
    for (const std::string& field : table.fields)
        sql += "INSERT INTO " + name + " (field, value) VALUES (CAST('" + field +
               "' AS BLOB), x'80ff');";
    makeDatabase(file, sql);
}

// The file is missing and the folder cannot take a new one. Root passes every permission
// check, so a root test does its file access as the user nobody (the file-system user id
// covers this thread only).
void readOnlyFolder(const fs::path& file, const SettingsTable&) {
    fs::permissions(file.parent_path(),
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    if (::geteuid() == 0)
        ::setfsuid(65534);
}

// Gives back what readOnlyFolder takes, whichever case ran.
struct RestoreAccess {
    fs::path folder;
    ~RestoreAccess() {
        ::setfsuid(::geteuid());
        std::error_code error;
        fs::permissions(folder, fs::perms::owner_write, fs::perm_options::add, error);
    }
};

struct Damage {
    const char* kind;
    void (*make)(const fs::path& file, const SettingsTable& table);
    bool updatesFail; // no save can even be prepared, and each says so in the log
};

const Damage kDamages[] = {
    {"garbage bytes", garbage, true},          {"an empty file", emptyFile, true},
    {"the table missing", tableMissing, true}, {"rows missing", rowsMissing, false},
    {"wrong column types", wrongTypes, false}, {"a read-only folder", readOnlyFolder, false},
};

std::optional<std::string> fileBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// What a first start shows: both folders the documents folder, BMP in the Preferences sheet
// and PNG in the export question, 85 per cent, every switch off, the main window centred.
void expectFirstStartValues(Settings& settings, const fs::path& documents) {
    const PreferencesValues shown = shownPreferences(settings, documents);
    EXPECT_EQ(shown.openFolder, documents);
    EXPECT_EQ(shown.exportFolder, documents);
    EXPECT_EQ(shown.formatRow, 0);
    EXPECT_EQ(exportQuestionFormatRow(settings.preferenceArray), 4);
    EXPECT_EQ(shown.compression, kDefaultCompression);
    EXPECT_EQ(shown.general, (std::array<bool, kGeneralSwitchCount>{}));
    EXPECT_NE(mainWindowPlacement(true, settings.windowArray, false).kind,
              WindowPlacement::Kind::Stored);
}

TEST_F(SettingsFiles, DamagedFilesGiveFirstStartValuesAndAreNeverWritten) {
    const AppPaths paths = AppPaths::inFolder(appFolder());
    const std::pair<const SettingsTable&, fs::path> files[] = {
        {windowsTable(), paths.filePath0},
        {preferencesTable(), paths.filePath1},
        {generalTable(), paths.filePath2}};
    for (const Damage& damage : kDamages) {
        for (const auto& [table, file] : files) {
            SCOPED_TRACE(std::string(damage.kind) + " in " + std::string(table.fileName));
            fs::remove_all(appFolder());
            fs::create_directories(appFolder());
            const RestoreAccess restore{appFolder()};
            damage.make(file, table);
            const std::optional<std::string> before = fileBytes(file);

            std::vector<std::string> messages;
            const LogSink previous =
                setLogSink([&](std::string_view m) { messages.emplace_back(m); });
            Settings settings = startUp();
            expectFirstStartValues(settings, folder_ / "Documents");
            // A session that stores every value of the table, as the window does with its
            // frames and the Preferences sheet with its controls.
            for (const std::string& field : table.fields)
                saveSetting(file, table, "1", field);
            setLogSink(previous);

            EXPECT_EQ(fileBytes(file), before);
            EXPECT_EQ(messages.size(), damage.updatesFail ? table.fields.size() : 0u);
            for (const std::string& message : messages)
                EXPECT_EQ(message.rfind("Error while creating update statement. '", 0), 0u)
                    << message;
            for (const fs::directory_entry& entry : fs::directory_iterator(appFolder()))
                EXPECT_EQ(entry.path().extension(), ".data") << "left behind: " << entry.path();
        }
    }
}

} // namespace
} // namespace orrery
