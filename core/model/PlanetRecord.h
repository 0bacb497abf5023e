#pragma once

#include "core/model/Color.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace orrery {

// The text keys of a planet record, in the order a package stores them. "color" is the
// one key whose value is not text.
enum class PlanetKey {
    tsecs,
    name,
    state,
    styleindex,
    surfaceindex,
    xvalue,
    yvalue,
    zvalue,
    radius,
    color,
    value1,
    value2,
    value3,
    value4,
    value5,
};

inline constexpr std::size_t kPlanetKeyCount = 15;
inline constexpr std::array<std::string_view, kPlanetKeyCount> kPlanetKeyNames{
    "tsecs",  "name",  "state",  "styleindex", "surfaceindex", "xvalue", "yvalue", "zvalue",
    "radius", "color", "value1", "value2",     "value3",       "value4", "value5"};

std::string_view keyName(PlanetKey key);
std::optional<PlanetKey> planetKeyNamed(std::string_view name);

// One planet: every value is decimal text as the user typed it, except the colour.
// A record is a value: an edit builds a new record and replaces the old one whole.
struct PlanetRecord {
    std::string tsecs;
    std::string name;
    std::string state = "1";
    std::string styleindex = "0";
    std::string surfaceindex = "0";
    std::string xvalue = "0";
    std::string yvalue = "0";
    std::string zvalue = "0";
    std::string radius = "24";
    Color color = kPureBlue;
    // value1 to value5: reserved, "0" after every rebuild.
    std::array<std::string, 5> reserved{"0", "0", "0", "0", "0"};

    // The text stored under a key; nullptr for "color".
    const std::string* text(PlanetKey key) const;
    std::string* text(PlanetKey key);

    friend bool operator==(const PlanetRecord&, const PlanetRecord&) = default;
};

// A planet is drawn, and counts for export, while its state is the text "1"; any other
// text hides it.
bool isShown(const PlanetRecord& record);

// A new planet as the creation sheet makes it.
PlanetRecord newPlanetRecord(std::string tsecs, std::string name);

// The rebuild rule: a copy of the record in which only the edited key differs and the
// reserved values are "0" again, whatever they held.
PlanetRecord rebuilt(const PlanetRecord& record, PlanetKey key, std::string value);
PlanetRecord rebuiltWithColor(const PlanetRecord& record, Color color);
// Rebuilt with a new position, as a drag in the scene writes it.
PlanetRecord rebuiltWithPosition(const PlanetRecord& record, std::string x, std::string y,
                                 std::string z);

} // namespace orrery
