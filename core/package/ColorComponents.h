#pragma once

#include "core/model/Color.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text form in which an archived colour keeps its components: ASCII decimal numbers
// separated by single spaces, usually followed by a NUL byte ("0 0 1" + NUL is pure blue).
namespace orrery {

// The numbers of a component text; nothing when it holds anything but finite decimal
// numbers separated by white space (a trailing NUL is allowed).
std::optional<std::vector<double>> parseColorComponents(std::string_view text);

// "red green blue" (and " alpha" unless it is 1) followed by a NUL, each number in the
// shortest form that reads back as the same double.
std::string rgbComponentsText(const Color& color);

} // namespace orrery
