#pragma once

#include "core/model/Color.h"

#include <plist/plist.h>

#include <optional>
#include <string>

namespace orrery {

// The colour held by an archived colour object (a dictionary whose class is NSColor).
// Calibrated and device RGB (spaces 1 and 2) come from "NSRGB", calibrated and device
// white (3 and 4) from "NSWhite"; either falls back to "NSComponents" as newer writers
// add it. A missing alpha is 1; components are clamped to 0..1. Other spaces (CMYK,
// catalogue and pattern colours) need the original platform to mean anything and are
// refused with a message in `problem`.
std::optional<Color> colorFromArchive(plist_t object, std::string& problem);

// The "NSColorSpace" of calibrated RGB, the space in which the program keeps and writes
// every colour (with its components under "NSRGB").
inline constexpr long kCalibratedRgbSpace = 1;

} // namespace orrery
