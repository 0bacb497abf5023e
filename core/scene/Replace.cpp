#include "core/scene/Replace.h"

namespace orrery {

std::string Replace(std::string_view text, std::string_view search, std::string_view replacement) {
    if (text.empty() || search.empty())
        return std::string(text);
    std::string result;
    result.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t at = text.find(search); at != std::string_view::npos;
         at = text.find(search, from)) {
        result.append(text.substr(from, at - from));
        result.append(replacement);
        from = at + search.size();
    }
    result.append(text.substr(from));
    return result;
}

} // namespace orrery
