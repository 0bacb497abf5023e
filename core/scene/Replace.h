#pragma once

#include <string>
#include <string_view>

namespace orrery {

// The text with every occurrence of search (literal, case-sensitive, left to right,
// non-overlapping) replaced; the text itself when either the text or search is empty.
std::string Replace(std::string_view text, std::string_view search, std::string_view replacement);

} // namespace orrery
