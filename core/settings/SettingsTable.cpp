#include "core/settings/SettingsTable.h"

#include <cstdio>

namespace orrery {
namespace {

std::vector<std::string> numberedFields(int count) {
    std::vector<std::string> fields;
    for (int i = 1; i <= count; ++i) {
        char name[16];
        std::snprintf(name, sizeof name, "Value%02d", i);
        fields.emplace_back(name);
    }
    return fields;
}

std::vector<std::string> windowFields() {
    std::vector<std::string> fields;
    for (const char* window : {"0", "1", "2"})
        for (const char* part : {"Width", "Height", "Left", "Top"})
            fields.push_back(std::string(part) + window);
    return fields;
}

} // namespace

const SettingsTable& windowsTable() {
    static const SettingsTable table{
        "Data0.data",
        "CREATE TABLE IF NOT EXISTS Windows (ID INTEGER PRIMARY KEY AUTOINCREMENT, field text, "
        "value text)",
        "INSERT INTO Windows (field,value) values ('%s','%s')",
        "Select * From Windows",
        "update Windows set value=? where field=?",
        windowFields()};
    return table;
}

const SettingsTable& preferencesTable() {
    static const SettingsTable table{
        "Data1.data",
        "CREATE TABLE IF NOT EXISTS Preferences (ID INTEGER PRIMARY KEY AUTOINCREMENT,field "
        "text,value text)",
        "INSERT INTO Preferences (field,value) values ('%s', '%s')",
        "Select * From Preferences",
        "update Preferences set value=? where field=?",
        numberedFields(99)};
    return table;
}

const SettingsTable& generalTable() {
    static const SettingsTable table{
        "Data2.data",
        "CREATE TABLE IF NOT EXISTS General (ID INTEGER PRIMARY KEY AUTOINCREMENT,field text,value "
        "text)",
        "INSERT INTO General (field,value) values ('%s', '%s')",
        "Select * From General",
        "update General set value=? where field=?",
        numberedFields(24)};
    return table;
}

} // namespace orrery
