#pragma once

namespace orrery {

// A colour as four calibrated-RGB components from 0 to 1. The program keeps every colour
// in this one space, so a colour read back from a package compares equal to the one written.
struct Color {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    friend bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color kPureBlue{0.0, 0.0, 1.0, 1.0};
inline constexpr Color kWhite{1.0, 1.0, 1.0, 1.0};

} // namespace orrery
