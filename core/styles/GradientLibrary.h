#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orrery {

// A colour stop in the dictionary-of-texts form ("red", "green", "blue" 0-255, "alpha"
// 0-100 per cent, "position" 0-1), the form in which stops are exchanged as records.
struct GradientStopText {
    std::string red;
    std::string green;
    std::string blue;
    std::string alpha;
    std::string position;
};

// A ready-to-draw stop: sRGB components and alpha from 0 to 1, location from 0 to 1.
struct GradientColorStop {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;
    double location = 0.0;
};

// The stops in the order they were handed over (not necessarily by location).
struct Gradient {
    std::vector<GradientColorStop> stops;
};

// Builds a gradient from stop records: components divided in single precision, locations
// passed through single precision. No stops give no gradient.
std::optional<Gradient> gradientFromStops(const std::vector<GradientStopText>& stops);

// The fixed catalogue of 85 gradients (numbers 0 to 84). The style menu offers 1 to 82.
class gradientLibrary {
public:
    static constexpr std::int64_t kCatalogueSize = 85;

    // The stops of one catalogue row as texts, in list order; empty for a number with
    // no stops (negative, or 85 and above).
    static std::vector<GradientStopText> stopsOf(std::int64_t number);

    // The gradient of a catalogue number, or none for a number without stops.
    std::optional<Gradient> getGradient(std::int64_t number) const;
};

} // namespace orrery
