#include "core/settings/SettingsDatabase.h"

#include "core/support/Log.h"

#include <sqlite3.h>

#include <memory>
#include <system_error>

namespace orrery {
namespace {

struct ConnectionCloser {
    void operator()(sqlite3* db) const { sqlite3_close(db); }
};
using Connection = std::unique_ptr<sqlite3, ConnectionCloser>;

struct StatementFinalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementFinalizer>;

// Opening never creates a file here: a settings file that vanished must not come back
// empty behind the program's back.
Connection openExisting(const std::filesystem::path& file) {
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
    Connection connection(db);
    if (rc != SQLITE_OK)
        return nullptr;
    return connection;
}

bool exec(sqlite3* db, const std::string& sql) {
    return sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

// The insert template with its two placeholders filled: the field name, then the value.
std::string insertStatement(const SettingsTable& table, const std::string& field,
                            const std::string& value) {
    std::string statement(table.insertTemplate);
    for (const std::string* text : {&field, &value})
        statement.replace(statement.find("%s"), 2, *text);
    return statement;
}

bool writeDefaults(const std::filesystem::path& file, const SettingsTable& table) {
    sqlite3* db = nullptr;
    const int rc =
        sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    Connection connection(db);
    if (rc != SQLITE_OK)
        return false;
    if (!exec(db, std::string(table.createStatement)) || !exec(db, "BEGIN"))
        return false;
    for (const std::string& field : table.fields)
        if (!exec(db, insertStatement(table, field, "0")))
            return false;
    return exec(db, "COMMIT");
}

} // namespace

bool createSettingsFileIfMissing(const std::filesystem::path& file, const SettingsTable& table) {
    std::error_code error;
    if (std::filesystem::exists(file, error) || error)
        return false;
    std::filesystem::path temporary = file;
    temporary += ".new";
    std::filesystem::remove(temporary, error);
    if (!writeDefaults(temporary, table)) {
        std::filesystem::remove(temporary, error);
        return false;
    }
    std::filesystem::rename(temporary, file, error);
    if (error) {
        std::filesystem::remove(temporary, error);
        return false;
    }
    return true;
}

void readSettings(const std::filesystem::path& file, const SettingsTable& table,
                  std::vector<std::string>& list) {
    Connection connection = openExisting(file);
    if (!connection)
        return;
    sqlite3_stmt* raw = nullptr;
    const std::string select(table.selectStatement);
    if (sqlite3_prepare_v2(connection.get(), select.c_str(), -1, &raw, nullptr) != SQLITE_OK)
        return;
    Statement statement(raw);
    std::vector<std::string> values;
    int rc = SQLITE_OK;
    while ((rc = sqlite3_step(statement.get())) == SQLITE_ROW) {
        const unsigned char* text = sqlite3_column_text(statement.get(), 2);
        values.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
    }
    // A file damaged half-way through is treated like one that cannot be read at all.
    if (rc != SQLITE_DONE)
        return;
    list.insert(list.end(), values.begin(), values.end());
}

void saveSetting(const std::filesystem::path& file, const SettingsTable& table,
                 std::string_view value, std::string_view field) {
    Connection connection = openExisting(file);
    if (!connection)
        return;
    sqlite3_stmt* raw = nullptr;
    const std::string update(table.updateStatement);
    if (sqlite3_prepare_v2(connection.get(), update.c_str(), -1, &raw, nullptr) != SQLITE_OK) {
        logMessage("Error while creating update statement. '" +
                   std::string(sqlite3_errmsg(connection.get())) + "'");
        return;
    }
    Statement statement(raw);
    sqlite3_bind_text(statement.get(), 1, value.data(), static_cast<int>(value.size()),
                      SQLITE_TRANSIENT);
    sqlite3_bind_text(statement.get(), 2, field.data(), static_cast<int>(field.size()),
                      SQLITE_TRANSIENT);
    sqlite3_step(statement.get());
}

} // namespace orrery
