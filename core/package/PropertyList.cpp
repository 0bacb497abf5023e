#include "core/package/PropertyList.h"

#include "core/package/BinaryPlistCheck.h"
#include "core/package/XmlPlistCheck.h"

#include <cstdlib>
#include <limits>

namespace orrery {

PlistPtr parsePropertyList(const std::string& bytes, const ParseLimits& limits,
                           std::string& error) {
    if (bytes.empty()) {
        error = "the file is empty";
        return nullptr;
    }
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
        error = "the file is too large";
        return nullptr;
    }
    const auto length = static_cast<std::uint32_t>(bytes.size());
    const bool binary = bytes.starts_with("bplist");
    if (binary ? !checkBinaryPropertyList(bytes, limits, error)
               : !checkXmlPropertyList(bytes, limits, error))
        return nullptr;
    // libplist leaves its output alone on some failures; only a node it set is a result.
    plist_t root = nullptr;
    if (binary)
        plist_from_bin(bytes.data(), length, &root);
    else
        plist_from_xml(bytes.data(), length, &root);
    if (root == nullptr)
        error = binary ? "the binary property list cannot be parsed"
                       : "the file is not a readable XML property list";
    return PlistPtr(root);
}

std::vector<plist_t> arrayItems(plist_t array) {
    std::vector<plist_t> items;
    if (plist_get_node_type(array) != PLIST_ARRAY)
        return items;
    items.reserve(plist_array_get_size(array));
    plist_array_iter iter = nullptr;
    plist_array_new_iter(array, &iter);
    if (iter == nullptr)
        return items;
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(array, iter, &item);
        if (item == nullptr)
            break;
        items.push_back(item);
    }
    std::free(iter);
    return items;
}

std::optional<std::string_view> stringValue(plist_t node) {
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING)
        return std::nullopt;
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    if (text == nullptr)
        return std::string_view();
    return std::string_view(text, length);
}

} // namespace orrery
