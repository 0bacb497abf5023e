#pragma once

#include "core/model/PlanetList.h"
#include "core/model/PlanetRecord.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Planet rows as spreadsheets exchange them: a header row, then one planet a row, fields
// separated by tabs (what a spreadsheet copies) or commas (a .csv file). A field holding
// the separator, a quote or a line break is quoted as RFC 4180 says, in both forms.
namespace orrery {

enum class RowFormat { tabs, commas };

// The header, in the order rows are written. Reading finds the columns by these names in
// any order and case; a missing column gives a new planet's value.
inline constexpr std::array<std::string_view, 9> kRowColumns{
    "name", "shown", "style", "surface", "x", "y", "z", "radius", "colour"};

std::string writePlanetRows(const std::vector<PlanetRecord>& planets, RowFormat format);

// A row that was not taken: its number as a spreadsheet shows it (the header is row 1) and
// the first column whose value fails its check ("header" when there is no header row).
struct RefusedRow {
    std::size_t row = 0;
    std::string column;
};

struct ReadRows {
    std::vector<PlanetRecord> planets; // without identities: tsecs is empty
    std::vector<RefusedRow> refused;
};

// Every value is checked as typing it into the table checks it: a name that is not blank,
// numbers for x, y and z, a radius of at least 0.1, "1" or "0" for shown, a style 0 to 82,
// a surface 0 to 48, a colour "#rrggbb". Blank lines are skipped.
ReadRows readPlanetRows(std::string_view text, RowFormat format);

// The name of the first value of a planet that typing would refuse, or none.
std::optional<std::string_view> refusedColumn(const PlanetRecord& planet);

// "3 (radius), 7 (name)": the refused rows in one line.
std::string refusedRowList(const std::vector<RefusedRow>& refused);

// Identities for `count` new planets: the numbers from `now` on that no planet has yet.
std::vector<std::string> freshIdentities(const PlanetList& planets, std::uint64_t now,
                                         std::size_t count);

} // namespace orrery
