#pragma once

#include "core/model/Color.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orrery {

// What an archived colour object (a dictionary whose class is NSColor) holds under the
// keys a reader uses; a key that is missing or holds a value of another type is none.
struct ArchivedColorFields {
    std::optional<std::uint64_t> space;         // "NSColorSpace", an integer
    std::optional<std::string_view> rgb;        // "NSRGB", data
    std::optional<std::string_view> white;      // "NSWhite", data
    std::optional<std::string_view> components; // "NSComponents", data
};

// The colour an archived colour object stands for. Calibrated and device RGB (spaces 1
// and 2) come from "NSRGB", calibrated and device white (3 and 4) from "NSWhite"; either
// falls back to "NSComponents" as newer writers add it. A missing alpha is 1; components
// are clamped to 0..1. Other spaces (CMYK, catalogue and pattern colours) name their
// colours through system colour catalogues and profiles that a package does not carry, so
// they are refused with a message in `problem`.
std::optional<Color> colorFromArchive(const ArchivedColorFields& fields, std::string& problem);

// The "NSColorSpace" of calibrated RGB, the space in which the program keeps and writes
// every colour (with its components under "NSRGB").
inline constexpr long kCalibratedRgbSpace = 1;

} // namespace orrery
