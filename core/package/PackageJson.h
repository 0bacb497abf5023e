#pragma once

#include "core/package/ProjectDocument.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The JSON form of a project package: what `orrery info` prints and `orrery convert`
// reads and writes. Values are the texts as stored; colours are [red, green, blue, alpha]
// from 0 to 1.
namespace orrery {

// "checks" (the results of the checks opening runs on each value) is for reading by
// people; it is derived from the values, so convert neither writes nor reads it.
nlohmann::ordered_json packageJson(const OpenedProject& project, bool withChecks);

// Planets alone, as the planet table copies them: {"planets": [...]}, each planet as in a
// package.
nlohmann::ordered_json planetsJson(const std::vector<PlanetRecord>& planets);
// The planets of such JSON (or of a whole package's); none, with a one-line reason, for
// text that is no such list.
std::optional<std::vector<PlanetRecord>> planetsFromJsonText(std::string_view text,
                                                             std::string& error);

// Parses JSON text and turns it into what a save writes. Every value is checked for its
// kind (text, colour, list); a value that the package format cannot hold (a light position
// that is no number, a background that is no whole number, a document size or camera text
// with a NUL character) is refused. Gives none with a
// one-line reason that names the value, for instance "planets[2].radius must be text".
std::optional<ProjectDocument> documentFromJsonText(std::string_view text, std::string& error);

} // namespace orrery
