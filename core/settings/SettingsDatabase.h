#pragma once

#include "core/settings/SettingsTable.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// The settings files are opened and closed around every single operation; nothing stays
// open, so another instance of the program never finds a file locked for long.
namespace orrery {

// Creates the table's file with its default rows (every value "0") when no file is there.
// An existing file is never touched, so the user's settings survive and a table is never
// upgraded. The file is built under a temporary name and renamed into place, so a failure
// half-way (a full disk) never leaves a table that would stay broken forever.
// Answers whether a new file was created.
bool createSettingsFileIfMissing(const std::filesystem::path& file, const SettingsTable& table);

// Appends the value column of every row, in row order. A file that cannot be opened or
// read leaves the list as it was, silently.
void readSettings(const std::filesystem::path& file, const SettingsTable& table,
                  std::vector<std::string>& list);

// Writes one row's value by field name. A field that matches no row changes nothing. When
// the update cannot be prepared, logs "Error while creating update statement. '%s'" with
// SQLite's message and goes on: losing one setting is better than losing the session.
void saveSetting(const std::filesystem::path& file, const SettingsTable& table,
                 std::string_view value, std::string_view field);

} // namespace orrery
