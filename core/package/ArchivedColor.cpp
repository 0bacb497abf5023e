#include "core/package/ArchivedColor.h"

#include "core/package/ColorComponents.h"

#include <algorithm>
#include <string_view>

namespace orrery {
namespace {

std::optional<std::string_view> dataValue(plist_t object, const char* key) {
    plist_t node = plist_dict_get_item(object, key);
    if (node == nullptr || plist_get_node_type(node) != PLIST_DATA)
        return std::nullopt;
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    return std::string_view(bytes == nullptr ? "" : bytes, bytes == nullptr ? 0 : length);
}

double clamped(double component) {
    return std::clamp(component, 0.0, 1.0);
}

} // namespace

std::optional<Color> colorFromArchive(plist_t object, std::string& problem) {
    plist_t spaceNode = plist_dict_get_item(object, "NSColorSpace");
    if (spaceNode == nullptr || plist_get_node_type(spaceNode) != PLIST_UINT) {
        problem = "it has no colour space";
        return std::nullopt;
    }
    std::uint64_t space = 0;
    plist_get_uint_val(spaceNode, &space);
    const bool rgb = space == 1 || space == 2;
    const bool white = space == 3 || space == 4;
    if (!rgb && !white) {
        problem =
            "its colour space (" + std::to_string(space) + ") is not one of RGB or white (1 to 4)";
        return std::nullopt;
    }
    auto text = dataValue(object, rgb ? "NSRGB" : "NSWhite");
    if (!text)
        text = dataValue(object, "NSComponents");
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
