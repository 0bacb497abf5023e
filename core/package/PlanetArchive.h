#pragma once

#include "core/model/PlanetRecord.h"

#include <string>
#include <vector>

// The planet list, "data1.xml": a keyed archive whose root is an array (NSMutableArray)
// of planet records, each a dictionary (NSDictionary) of the fifteen record keys, every
// value text except "color", a calibrated RGB colour.
namespace orrery {

// Fails, with a message, only when the list is too large for a package
// (kPlanetArchiveLimits).
bool encodePlanetArchive(const std::vector<PlanetRecord>& planets, std::string& bytes,
                         std::string& error);

// Every record in order. "value1" to "value5" are not taken from the file: they are "0".
// A record that lacks one of the other ten keys, or holds a value of the wrong kind,
// makes the whole list unreadable. The values themselves are not checked.
bool decodePlanetArchive(const std::string& bytes, std::vector<PlanetRecord>& planets,
                         std::string& error);

} // namespace orrery
