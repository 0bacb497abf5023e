#include "core/package/KeyedArchive.h"

#include "core/package/ArchivedColor.h"
#include "core/package/PropertyList.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace orrery {
namespace {

enum class ClassKind { array, dictionary, color, text };

// Decided by the class chain, so that mutable and other subclasses read as their base.
constexpr std::array<std::pair<std::string_view, ClassKind>, 4> kKnownClasses{{
    {"NSArray", ClassKind::array},
    {"NSDictionary", ClassKind::dictionary},
    {"NSColor", ClassKind::color},
    {"NSString", ClassKind::text},
}};

// A reference in either form: a UID node, or the dictionary {"CF$UID": n} that stands for
// one in XML property lists.
std::optional<std::uint64_t> uidValue(plist_t node) {
    if (node == nullptr)
        return std::nullopt;
    std::uint64_t value = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_UID:
        plist_get_uid_val(node, &value);
        return value;
    case PLIST_DICT: {
        plist_t number = plist_dict_get_item(node, "CF$UID");
        if (plist_dict_get_size(node) != 1 || number == nullptr ||
            plist_get_node_type(number) != PLIST_UINT)
            return std::nullopt;
        plist_get_uint_val(number, &value);
        return value;
    }
    default:
        return std::nullopt;
    }
}

class Decoder {
public:
    Decoder(std::vector<plist_t> table, std::string& error)
        : table_(std::move(table)), state_(table_.size(), State::fresh), objects_(table_.size()),
          error_(error) {}

    // The table entry `node` refers to, checked against the table.
    std::optional<std::uint32_t> reference(plist_t node, std::string_view where) {
        const auto uid = uidValue(node);
        if (!uid) {
            fail(std::string(where) + " is not a reference");
            return std::nullopt;
        }
        if (*uid >= table_.size()) {
            fail(std::string(where) + " refers to entry " + std::to_string(*uid) +
                 ", but the archive has only " + std::to_string(table_.size()) + " entries");
            return std::nullopt;
        }
        return static_cast<std::uint32_t>(*uid);
    }

    bool decode(std::uint32_t entry, std::uint32_t depth) {
        if (state_[entry] == State::done)
            return true;
        if (state_[entry] == State::inProgress)
            return fail("entry " + std::to_string(entry) + " contains itself");
        if (depth > kMaxNestingDepth)
            return fail("it is nested deeper than " + std::to_string(kMaxNestingDepth) + " levels");
        // Reference 0 is the archiver's nil ("$null").
        if (entry == 0) {
            state_[entry] = State::done;
            return true;
        }
        state_[entry] = State::inProgress;
        if (!decodeEntry(entry, depth))
            return false;
        state_[entry] = State::done;
        return true;
    }

    std::vector<ArchivedObject> take() { return std::move(objects_); }

private:
    enum class State : std::uint8_t { fresh, inProgress, done };

    bool fail(const std::string& problem) {
        error_ = "the archive is damaged: " + problem;
        return false;
    }

    bool decodeEntry(std::uint32_t entry, std::uint32_t depth) {
        plist_t node = table_[entry];
        if (const auto text = stringValue(node)) {
            objects_[entry] = std::string(*text);
            return true;
        }
        if (plist_get_node_type(node) != PLIST_DICT)
            return fail("entry " + std::to_string(entry) + " is of a type a package never holds");
        const auto kind = classOf(entry, node);
        if (!kind)
            return false;
        switch (*kind) {
        case ClassKind::array:
            return decodeArray(entry, node, depth);
        case ClassKind::dictionary:
            return decodeDictionary(entry, node, depth);
        case ClassKind::color:
            return decodeColor(entry, node);
        case ClassKind::text:
            return decodeMutableText(entry, node);
        }
        return false;
    }

    std::optional<ClassKind> classOf(std::uint32_t entry, plist_t node) {
        const std::string where = "the class of entry " + std::to_string(entry);
        const auto classEntry = reference(plist_dict_get_item(node, "$class"), where);
        if (!classEntry)
            return std::nullopt;
        if (const auto known = classes_.find(*classEntry); known != classes_.end())
            return known->second;
        plist_t description = table_[*classEntry];
        const auto name = plist_get_node_type(description) == PLIST_DICT
                              ? stringValue(plist_dict_get_item(description, "$classname"))
                              : std::nullopt;
        if (!name) {
            fail(where + " is not a class description");
            return std::nullopt;
        }
        std::vector<std::string_view> chain{*name};
        for (plist_t item : arrayItems(plist_dict_get_item(description, "$classes")))
            if (const auto super = stringValue(item))
                chain.push_back(*super);
        for (const auto& [className, kind] : kKnownClasses) {
            if (std::find(chain.begin(), chain.end(), className) != chain.end()) {
                classes_.emplace(*classEntry, kind);
                return kind;
            }
        }
        fail("entry " + std::to_string(entry) + " is an object of class " + std::string(*name) +
             ", which a package never holds");
        return std::nullopt;
    }

    // The table entries listed in an "NS.keys" or "NS.objects" array.
    std::optional<std::vector<std::uint32_t>> references(std::uint32_t entry, plist_t node,
                                                         const char* key) {
        plist_t list = plist_dict_get_item(node, key);
        if (list == nullptr || plist_get_node_type(list) != PLIST_ARRAY) {
            fail("entry " + std::to_string(entry) + " has no " + key + " list");
            return std::nullopt;
        }
        const std::string where = std::string(key) + " of entry " + std::to_string(entry);
        std::vector<std::uint32_t> entries;
        const std::vector<plist_t> items = arrayItems(list);
        entries.reserve(items.size());
        for (plist_t item : items) {
            const auto target = reference(item, where);
            if (!target)
                return std::nullopt;
            entries.push_back(*target);
        }
        return entries;
    }

    bool decodeArray(std::uint32_t entry, plist_t node, std::uint32_t depth) {
        auto items = references(entry, node, "NS.objects");
        if (!items)
            return false;
        for (std::uint32_t item : *items)
            if (!decode(item, depth + 1))
                return false;
        objects_[entry] = ArchivedArray{std::move(*items)};
        return true;
    }

    bool decodeDictionary(std::uint32_t entry, plist_t node, std::uint32_t depth) {
        const auto keys = references(entry, node, "NS.keys");
        if (!keys)
            return false;
        const auto values = references(entry, node, "NS.objects");
        if (!values)
            return false;
        if (keys->size() != values->size())
            return fail("entry " + std::to_string(entry) + " has " + std::to_string(keys->size()) +
                        " keys but " + std::to_string(values->size()) + " values");
        ArchivedDictionary dictionary;
        dictionary.entries.reserve(keys->size());
        for (std::size_t i = 0; i < keys->size(); ++i) {
            const std::uint32_t key = (*keys)[i];
            if (!decode(key, depth + 1))
                return false;
            if (!std::holds_alternative<std::string>(objects_[key]))
                return fail("a key of entry " + std::to_string(entry) + " is not text");
            if (!decode((*values)[i], depth + 1))
                return false;
            dictionary.entries.emplace_back(key, (*values)[i]);
        }
        objects_[entry] = std::move(dictionary);
        return true;
    }

    bool decodeColor(std::uint32_t entry, plist_t node) {
        std::string problem;
        const auto color = colorFromArchive(node, problem);
        if (!color)
            return fail("the colour in entry " + std::to_string(entry) +
                        " is unreadable: " + problem);
        objects_[entry] = *color;
        return true;
    }

    // A mutable string keeps its text under "NS.string".
    bool decodeMutableText(std::uint32_t entry, plist_t node) {
        const auto text = stringValue(plist_dict_get_item(node, "NS.string"));
        if (!text)
            return fail("the string in entry " + std::to_string(entry) + " has no text");
        objects_[entry] = std::string(*text);
        return true;
    }

    std::vector<plist_t> table_;
    std::vector<State> state_;
    std::vector<ArchivedObject> objects_;
    std::unordered_map<std::uint32_t, ClassKind> classes_;
    std::string& error_;
};

} // namespace

std::optional<KeyedArchive> KeyedArchive::read(const std::string& bytes, const ParseLimits& limits,
                                               std::string& error) {
    const PlistPtr plist = parsePropertyList(bytes, limits, error);
    if (!plist)
        return std::nullopt;
    return decode(plist.get(), error);
}

std::optional<KeyedArchive> KeyedArchive::decode(plist_t archive, std::string& error) {
    const auto archiver = plist_get_node_type(archive) == PLIST_DICT
                              ? stringValue(plist_dict_get_item(archive, "$archiver"))
                              : std::nullopt;
    plist_t objects = archiver ? plist_dict_get_item(archive, "$objects") : nullptr;
    plist_t top = archiver ? plist_dict_get_item(archive, "$top") : nullptr;
    if (archiver != "NSKeyedArchiver" || plist_get_node_type(objects) != PLIST_ARRAY ||
        plist_get_node_type(top) != PLIST_DICT) {
        error = "the file is not a keyed archive";
        return std::nullopt;
    }
    Decoder decoder(arrayItems(objects), error);
    const auto root = decoder.reference(plist_dict_get_item(top, "root"), "the archive's root");
    if (!root || !decoder.decode(*root, 1))
        return std::nullopt;
    return KeyedArchive(decoder.take(), *root);
}

std::optional<std::uint32_t> KeyedArchive::find(const ArchivedDictionary& dictionary,
                                                std::string_view key) const {
    for (const auto& [keyEntry, valueEntry] : dictionary.entries)
        if (const auto* text = std::get_if<std::string>(&objects_[keyEntry]); text && *text == key)
            return valueEntry;
    return std::nullopt;
}

} // namespace orrery
