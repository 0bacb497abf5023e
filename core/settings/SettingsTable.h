#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrery {

// One of the three settings databases: a file holding one table of field/value rows.
// Rows are created once, in a fixed order, so row N of the table is entry N of the
// in-memory list that the rest of the program reads by position.
struct SettingsTable {
    std::string_view fileName;
    std::string_view createStatement;
    std::string_view insertTemplate; // two %s placeholders: field, then value
    std::string_view selectStatement;
    std::string_view updateStatement; // binds value, then field
    std::vector<std::string> fields;  // in row order
};

// "Data0.data": the frames of the main window and the two secondary windows (12 rows).
const SettingsTable& windowsTable();
// "Data1.data": folders and export defaults (99 rows, "Value01" to "Value99").
const SettingsTable& preferencesTable();
// "Data2.data": the twelve general switches and twelve spare rows ("Value01" to "Value24").
const SettingsTable& generalTable();

} // namespace orrery
