#include "core/package/ArchivedColor.h"

#include "core/package/ColorComponents.h"

#include <algorithm>

namespace orrery {
namespace {

double clamped(double component) {
    return std::clamp(component, 0.0, 1.0);
}

} // namespace

std::optional<Color> colorFromArchive(const ArchivedColorFields& fields, std::string& problem) {
    if (!fields.space) {
        problem = "it has no colour space";
        return std::nullopt;
    }
    const std::uint64_t space = *fields.space;
    const bool rgb = space == 1 || space == 2;
    const bool white = space == 3 || space == 4;
    if (!rgb && !white) {
        problem =
            "its colour space (" + std::to_string(space) + ") is not one of RGB or white (1 to 4)";
        return std::nullopt;
    }
    auto text = rgb ? fields.rgb : fields.white;
    if (!text)
        text = fields.components;
    if (!text) {
        problem = "it holds no components";
        return std::nullopt;
    }
    const auto numbers = parseColorComponents(*text);
    const std::size_t channels = rgb ? 3 : 1;
    if (!numbers || numbers->size() < channels || numbers->size() > channels + 1) {
        problem = "its components are not " + std::to_string(channels) + " or " +
                  std::to_string(channels + 1) + " decimal numbers";
        return std::nullopt;
    }
    const std::vector<double>& n = *numbers;
    const double alpha = n.size() > channels ? clamped(n[channels]) : 1.0;
    if (white)
        return Color{clamped(n[0]), clamped(n[0]), clamped(n[0]), alpha};
    return Color{clamped(n[0]), clamped(n[1]), clamped(n[2]), alpha};
}

} // namespace orrery
