#include "core/edit/PlanetRows.h"

#include "core/styles/StyleChoices.h"
#include "core/styles/SurfaceNames.h"
#include "core/validate/Validators.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <set>

namespace orrery {
namespace {

enum Column : std::size_t { name, shown, style, surface, x, y, z, radius, colour };

char separatorOf(RowFormat format) {
    return format == RowFormat::tabs ? '\t' : ',';
}

// RFC 4180: a field is quoted when it holds the separator, a quote or a line break, and a
// quote inside it is doubled.
void appendField(std::string& out, std::string_view field, char separator) {
    if (field.find_first_of(std::string{separator, '"', '\r', '\n'}) == std::string_view::npos) {
        out += field;
        return;
    }
    out += '"';
    for (char c : field)
        out += c == '"' ? std::string("\"\"") : std::string(1, c);
    out += '"';
}

std::string hexColour(const Color& c) {
    const auto byte = [](double v) {
        return static_cast<unsigned>(std::lround(std::clamp(v, 0.0, 1.0) * 255.0));
    };
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", byte(c.red), byte(c.green), byte(c.blue));
    return text;
}

std::optional<Color> colourFromHex(std::string_view text) {
    if (text.size() != 7 || text[0] != '#')
        return std::nullopt;
    std::array<unsigned, 3> bytes{};
    for (std::size_t i = 0; i < 3; ++i) {
        const char* first = text.data() + 1 + 2 * i;
        if (!std::isxdigit(static_cast<unsigned char>(first[0])) ||
            !std::isxdigit(static_cast<unsigned char>(first[1])) ||
            std::from_chars(first, first + 2, bytes[i], 16).ptr != first + 2)
            return std::nullopt;
    }
    return Color{bytes[0] / 255.0, bytes[1] / 255.0, bytes[2] / 255.0, 1.0};
}

bool isChoice(std::string_view text, long last) {
    long value = -1;
    const auto end = text.data() + text.size();
    return !text.empty() && std::from_chars(text.data(), end, value).ptr == end && value >= 0 &&
           value <= last;
}

// The fields of every record; a quoted field may hold separators and line breaks.
std::vector<std::vector<std::string>> records(std::string_view text, char separator) {
    std::vector<std::vector<std::string>> rows(1, std::vector<std::string>(1));
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        std::string& field = rows.back().back();
        if (quoted) {
            if (c != '"')
                field += c;
            else if (i + 1 < text.size() && text[i + 1] == '"')
                field += text[++i];
            else
                quoted = false;
        } else if (c == '"') {
            quoted = true;
        } else if (c == separator) {
            rows.back().emplace_back();
        } else if (c == '\n' || c == '\r') {
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
            rows.emplace_back(1);
        } else {
            field += c;
        }
    }
    return rows;
}

bool isBlank(const std::vector<std::string>& row) {
    return std::all_of(row.begin(), row.end(), [](const std::string& f) { return f.empty(); });
}

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

} // namespace

std::string writePlanetRows(const std::vector<PlanetRecord>& planets, RowFormat format) {
    const char separator = separatorOf(format);
    const std::string lineEnd = format == RowFormat::commas ? "\r\n" : "\n";
    std::string out;
    for (std::string_view column : kRowColumns)
        (out += column) += column == kRowColumns.back() ? lineEnd : std::string(1, separator);
    for (const PlanetRecord& p : planets) {
        const std::array<std::string, kRowColumns.size()> fields{
            p.name,   p.state,  p.styleindex, p.surfaceindex,    p.xvalue,
            p.yvalue, p.zvalue, p.radius,     hexColour(p.color)};
        for (std::size_t i = 0; i < fields.size(); ++i) {
            appendField(out, fields[i], separator);
            out += i + 1 == fields.size() ? lineEnd : std::string(1, separator);
        }
    }
    return out;
}

std::optional<std::string_view> refusedColumn(const PlanetRecord& p) {
    if (!validateAddText(p.name))
        return kRowColumns[name];
    if (p.state != "1" && p.state != "0")
        return kRowColumns[shown];
    if (!isChoice(p.styleindex, kStyleChoices))
        return kRowColumns[style];
    if (!isChoice(p.surfaceindex, kSurfaceCount))
        return kRowColumns[surface];
    const std::array<const std::string*, 3> position{&p.xvalue, &p.yvalue, &p.zvalue};
    for (std::size_t i = 0; i < position.size(); ++i)
        if (!validatePosNegFloat(*position[i]))
            return kRowColumns[x + i];
    if (!validatePosRadius(p.radius))
        return kRowColumns[radius];
    return std::nullopt;
}

ReadRows readPlanetRows(std::string_view text, RowFormat format) {
    const std::vector<std::vector<std::string>> rows = records(text, separatorOf(format));
    ReadRows read;
    // Where each column stands in the header; none for a column it lacks.
    std::array<std::optional<std::size_t>, kRowColumns.size()> at{};
    for (std::size_t i = 0; i < rows.front().size(); ++i) {
        const auto known =
            std::find(kRowColumns.begin(), kRowColumns.end(), lower(rows.front()[i]));
        if (known != kRowColumns.end())
            at[static_cast<std::size_t>(known - kRowColumns.begin())] = i;
    }
    if (!at[name]) {
        read.refused.push_back({1, "header"});
        return read;
    }
    for (std::size_t r = 1; r < rows.size(); ++r) {
        const std::vector<std::string>& row = rows[r];
        if (isBlank(row))
            continue;
        PlanetRecord planet = newPlanetRecord({}, {});
        const auto field = [&](Column column) -> const std::string* {
            return at[column] && *at[column] < row.size() ? &row[*at[column]] : nullptr;
        };
        std::string* values[] = {&planet.name,         &planet.state,  &planet.styleindex,
                                 &planet.surfaceindex, &planet.xvalue, &planet.yvalue,
                                 &planet.zvalue,       &planet.radius};
        for (std::size_t c = name; c < colour; ++c)
            if (const std::string* value = field(static_cast<Column>(c)))
                *values[c] = *value;
        std::optional<std::string_view> refused = refusedColumn(planet);
        if (const std::string* hex = field(colour); !refused && hex) {
            const std::optional<Color> parsed = colourFromHex(*hex);
            if (parsed)
                planet.color = *parsed;
            else
                refused = kRowColumns[colour];
        }
        if (refused)
            read.refused.push_back({r + 1, std::string(*refused)});
        else
            read.planets.push_back(std::move(planet));
    }
    return read;
}

std::string refusedRowList(const std::vector<RefusedRow>& refused) {
    std::string list;
    for (const RefusedRow& row : refused)
        list += (list.empty() ? "" : ", ") + std::to_string(row.row) + " (" + row.column + ")";
    return list;
}

std::vector<std::string> freshIdentities(const PlanetList& planets, std::uint64_t now,
                                         std::size_t count) {
    std::set<std::string> taken;
    for (const PlanetRecord& planet : planets)
        taken.insert(planet.tsecs);
    std::vector<std::string> fresh;
    for (std::uint64_t candidate = now; fresh.size() < count; ++candidate)
        if (!taken.contains(std::to_string(candidate)))
            fresh.push_back(std::to_string(candidate));
    return fresh;
}

} // namespace orrery
