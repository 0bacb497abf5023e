#pragma once

#include <cstddef>
#include <cstdint>

namespace orrery::catalogue {

// One stop of the built-in catalogue: the position exactly as written (several spellings
// occur, "0.0f" among them) and the colour as whole numbers 0 to 255. Every catalogue
// stop is fully opaque.
struct Stop {
    const char* position = nullptr;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

inline constexpr std::size_t kMaxStops = 12;

// The stops of one gradient in list order, which is not always the order of positions.
struct Row {
    std::size_t count = 0;
    Stop stops[kMaxStops];
};

inline constexpr std::size_t kRowCount = 85;

// Row of a catalogue number; nullptr for a number outside 0 to 84.
const Row* row(std::int64_t number);

} // namespace orrery::catalogue
