#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace orrery {

// JSON laid out for people: two-space indentation, one member per line, but a list of
// plain values (a colour, the light checks) on one line: "color": [1.0, 0.5, 0.0, 1.0].
// Text that is not UTF-8 shows U+FFFD for each bad byte. Ends with a newline.
std::string layOutJson(const nlohmann::ordered_json& value);

} // namespace orrery
