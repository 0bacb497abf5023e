#include "core/package/JsonLayout.h"

#include <algorithm>

namespace orrery {
namespace {

using nlohmann::ordered_json;

// Text from a damaged package may not be UTF-8; it is shown with replacement characters
// rather than refused, so that the rest of the package can still be read.
std::string dumped(const ordered_json& value) {
    return value.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

bool isFlatList(const ordered_json& value) {
    return value.is_array() && std::none_of(value.begin(), value.end(), [](const ordered_json& v) {
               return v.is_structured();
           });
}

// Our packages nest three levels deep, so the recursion stays shallow.
void layOut(const ordered_json& value, int depth, std::string& out) {
    if (!value.is_structured() || value.empty()) {
        out += dumped(value);
        return;
    }
    if (isFlatList(value)) {
        out += '[';
        for (std::size_t i = 0; i < value.size(); ++i)
            out += (i ? ", " : "") + dumped(value[i]);
        out += ']';
        return;
    }
    const std::string indent(static_cast<std::size_t>(depth + 1) * 2, ' ');
    const bool object = value.is_object();
    out += object ? "{\n" : "[\n";
    bool first = true;
    for (auto it = value.begin(); it != value.end(); ++it) {
        out += first ? "" : ",\n";
        first = false;
        out += indent;
        if (object)
            out += dumped(it.key()) + ": ";
        layOut(it.value(), depth + 1, out);
    }
    out += '\n' + std::string(static_cast<std::size_t>(depth) * 2, ' ') + (object ? '}' : ']');
}

} // namespace

std::string layOutJson(const ordered_json& value) {
    std::string out;
    layOut(value, 0, out);
    out += '\n';
    return out;
}

} // namespace orrery
