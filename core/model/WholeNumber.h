#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace orrery {

// A number typed on the command line: the whole text must be the number, so "2x", " 2" and ""
// are refused.
template <typename Number> std::optional<Number> wholeNumber(std::string_view text) {
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

} // namespace orrery
