#include "core/package/PlistNodes.h"

#include <limits>

namespace orrery {

BinaryPlistNodes::BinaryPlistNodes(std::string_view bytes) : plist_(bytes) {
    // The caller checked the list whole; this only takes in its trailer again.
    std::string ignored;
    plist_.readTrailer(std::numeric_limits<std::uint64_t>::max(), ignored);
}

std::optional<BinaryObject> BinaryPlistNodes::object(Node node) const {
    BinaryObject found;
    std::string ignored;
    if (node >= plist_.objectCount() || !plist_.object(node, found, ignored))
        return std::nullopt;
    return found;
}

std::optional<std::string_view> BinaryPlistNodes::text(Node node) const {
    const auto found = object(node);
    if (!found)
        return std::nullopt;
    if (found->kind == BinaryObjectKind::asciiText)
        return plist_.contents(*found);
    if (found->kind != BinaryObjectKind::utf16Text)
        return std::nullopt;
    auto converted = utf8Texts_.find(node);
    if (converted == utf8Texts_.end())
        converted = utf8Texts_.emplace(node, utf8FromUtf16BigEndian(plist_.contents(*found))).first;
    return converted->second;
}

std::optional<std::string_view> BinaryPlistNodes::data(Node node) const {
    const auto found = object(node);
    if (!found || found->kind != BinaryObjectKind::data)
        return std::nullopt;
    return plist_.contents(*found);
}

std::optional<std::uint64_t> BinaryPlistNodes::unsignedInteger(Node node) const {
    const auto found = object(node);
    if (!found || found->kind != BinaryObjectKind::integer)
        return std::nullopt;
    return plist_.unsignedValue(*found);
}

std::optional<std::uint64_t> BinaryPlistNodes::uid(Node node) const {
    const auto found = object(node);
    if (!found || found->kind != BinaryObjectKind::uid)
        return std::nullopt;
    return plist_.unsignedValue(*found);
}

bool BinaryPlistNodes::isDictionary(Node node) const {
    const auto found = object(node);
    return found && found->kind == BinaryObjectKind::dictionary;
}

std::size_t BinaryPlistNodes::dictionarySize(Node node) const {
    const auto found = object(node);
    return found && found->kind == BinaryObjectKind::dictionary
               ? static_cast<std::size_t>(found->count)
               : 0;
}

std::optional<BinaryPlistNodes::Node> BinaryPlistNodes::item(Node dictionary,
                                                             std::string_view key) const {
    const auto found = object(dictionary);
    if (!found || found->kind != BinaryObjectKind::dictionary)
        return std::nullopt;
    for (std::uint64_t i = 0; i < found->count; ++i)
        if (text(plist_.reference(*found, i)) == key)
            return plist_.reference(*found, found->count + i);
    return std::nullopt;
}

std::optional<std::vector<BinaryPlistNodes::Node>> BinaryPlistNodes::items(Node array) const {
    const auto found = object(array);
    if (!found || found->kind != BinaryObjectKind::array)
        return std::nullopt;
    std::vector<Node> nodes(static_cast<std::size_t>(found->count));
    for (std::size_t i = 0; i < nodes.size(); ++i)
        nodes[i] = plist_.reference(*found, i);
    return nodes;
}

std::optional<std::string_view> XmlPlistNodes::data(Node node) const {
    if (node == nullptr || plist_get_node_type(node) != PLIST_DATA)
        return std::nullopt;
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    return bytes == nullptr ? std::string_view() : std::string_view(bytes, length);
}

std::optional<std::uint64_t> XmlPlistNodes::unsignedInteger(Node node) const {
    if (node == nullptr || plist_get_node_type(node) != PLIST_UINT)
        return std::nullopt;
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return value;
}

std::optional<std::uint64_t> XmlPlistNodes::uid(Node node) const {
    if (node == nullptr || plist_get_node_type(node) != PLIST_UID)
        return std::nullopt;
    std::uint64_t value = 0;
    plist_get_uid_val(node, &value);
    return value;
}

bool XmlPlistNodes::isDictionary(Node node) const {
    return node != nullptr && plist_get_node_type(node) == PLIST_DICT;
}

std::size_t XmlPlistNodes::dictionarySize(Node node) const {
    return isDictionary(node) ? plist_dict_get_size(node) : 0;
}

std::optional<XmlPlistNodes::Node> XmlPlistNodes::item(Node dictionary,
                                                       std::string_view key) const {
    if (!isDictionary(dictionary))
        return std::nullopt;
    plist_t found = plist_dict_get_item(dictionary, std::string(key).c_str());
    return found != nullptr ? std::optional<Node>(found) : std::nullopt;
}

std::optional<std::vector<XmlPlistNodes::Node>> XmlPlistNodes::items(Node array) const {
    if (array == nullptr || plist_get_node_type(array) != PLIST_ARRAY)
        return std::nullopt;
    return arrayItems(array);
}

} // namespace orrery
