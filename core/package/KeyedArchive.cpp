#include "core/package/KeyedArchive.h"

#include "core/package/ArchivedColor.h"
#include "core/package/BinaryPlistCheck.h"
#include "core/package/PlistNodes.h"
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
template <typename Nodes>
std::optional<std::uint64_t> uidValue(const Nodes& nodes, typename Nodes::Node node) {
    if (const auto uid = nodes.uid(node))
        return uid;
    if (nodes.dictionarySize(node) != 1)
        return std::nullopt;
    const auto number = nodes.item(node, "CF$UID");
    return number ? nodes.unsignedInteger(*number) : std::nullopt;
}

template <typename Nodes> class Decoder {
public:
    using Node = typename Nodes::Node;

    Decoder(const Nodes& nodes, std::vector<Node> table, std::string& error)
        : nodes_(nodes), table_(std::move(table)), state_(table_.size(), State::fresh),
          objects_(table_.size()), error_(error) {}

    // The table entry `node` refers to, checked against the table.
    std::optional<std::uint32_t> reference(std::optional<Node> node, std::string_view where) {
        const auto uid = node ? uidValue(nodes_, *node) : std::nullopt;
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
        const Node node = table_[entry];
        if (const auto text = nodes_.text(node)) {
            objects_[entry] = *text;
            return true;
        }
        if (!nodes_.isDictionary(node))
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

    std::optional<ClassKind> classOf(std::uint32_t entry, Node node) {
        const std::string where = "the class of entry " + std::to_string(entry);
        const auto classEntry = reference(nodes_.item(node, "$class"), where);
        if (!classEntry)
            return std::nullopt;
        if (const auto known = classes_.find(*classEntry); known != classes_.end())
            return known->second;
        const Node description = table_[*classEntry];
        const auto nameNode = nodes_.item(description, "$classname");
        const auto name = nameNode ? nodes_.text(*nameNode) : std::nullopt;
        if (!name) {
            fail(where + " is not a class description");
            return std::nullopt;
        }
        std::vector<std::string_view> chain{*name};
        const auto superNodes = nodes_.item(description, "$classes");
        const auto supers = superNodes ? nodes_.items(*superNodes) : std::nullopt;
        for (const Node item : supers.value_or(std::vector<Node>{}))
            if (const auto super = nodes_.text(item))
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
    std::optional<std::vector<std::uint32_t>> references(std::uint32_t entry, Node node,
                                                         const char* key) {
        const auto list = nodes_.item(node, key);
        const auto items = list ? nodes_.items(*list) : std::nullopt;
        if (!items) {
            fail("entry " + std::to_string(entry) + " has no " + key + " list");
            return std::nullopt;
        }
        const std::string where = std::string(key) + " of entry " + std::to_string(entry);
        std::vector<std::uint32_t> entries;
        entries.reserve(items->size());
        for (const Node item : *items) {
            const auto target = reference(item, where);
            if (!target)
                return std::nullopt;
            entries.push_back(*target);
        }
        return entries;
    }

    bool decodeArray(std::uint32_t entry, Node node, std::uint32_t depth) {
        auto items = references(entry, node, "NS.objects");
        if (!items)
            return false;
        for (std::uint32_t item : *items)
            if (!decode(item, depth + 1))
                return false;
        objects_[entry] = ArchivedArray{std::move(*items)};
        return true;
    }

    bool decodeDictionary(std::uint32_t entry, Node node, std::uint32_t depth) {
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
            if (!std::holds_alternative<std::string_view>(objects_[key]))
                return fail("a key of entry " + std::to_string(entry) + " is not text");
            if (!decode((*values)[i], depth + 1))
                return false;
            dictionary.entries.emplace_back(key, (*values)[i]);
        }
        objects_[entry] = std::move(dictionary);
        return true;
    }

    bool decodeColor(std::uint32_t entry, Node node) {
        const auto dataAt = [&](const char* key) {
            const auto item = nodes_.item(node, key);
            return item ? nodes_.data(*item) : std::nullopt;
        };
        const auto space = nodes_.item(node, "NSColorSpace");
        const ArchivedColorFields fields{space ? nodes_.unsignedInteger(*space) : std::nullopt,
                                         dataAt("NSRGB"), dataAt("NSWhite"),
                                         dataAt("NSComponents")};
        std::string problem;
        const auto color = colorFromArchive(fields, problem);
        if (!color)
            return fail("the colour in entry " + std::to_string(entry) +
                        " is unreadable: " + problem);
        objects_[entry] = *color;
        return true;
    }

    // A mutable string keeps its text under "NS.string".
    bool decodeMutableText(std::uint32_t entry, Node node) {
        const auto textNode = nodes_.item(node, "NS.string");
        const auto text = textNode ? nodes_.text(*textNode) : std::nullopt;
        if (!text)
            return fail("the string in entry " + std::to_string(entry) + " has no text");
        objects_[entry] = *text;
        return true;
    }

    const Nodes& nodes_;
    std::vector<Node> table_;
    std::vector<State> state_;
    std::vector<ArchivedObject> objects_;
    std::unordered_map<std::uint32_t, ClassKind> classes_;
    std::string& error_;
};

} // namespace

std::optional<KeyedArchive> KeyedArchive::read(const std::string& bytes, const ParseLimits& limits,
                                               std::string& error) {
    if (bytes.starts_with("bplist")) {
        if (!checkBinaryPropertyList(bytes, limits, error))
            return std::nullopt;
        return decode(std::make_shared<const BinaryPlistNodes>(bytes), error);
    }
    PlistPtr tree = parsePropertyList(bytes, limits, error);
    if (!tree)
        return std::nullopt;
    return decode(std::make_shared<const XmlPlistNodes>(std::move(tree)), error);
}

template <typename Nodes>
std::optional<KeyedArchive> KeyedArchive::decode(std::shared_ptr<const Nodes> nodes,
                                                 std::string& error) {
    const auto top = nodes->top();
    const auto archiverNode = nodes->item(top, "$archiver");
    const auto archiver = archiverNode ? nodes->text(*archiverNode) : std::nullopt;
    const auto objectsNode = nodes->item(top, "$objects");
    auto objects = objectsNode ? nodes->items(*objectsNode) : std::nullopt;
    const auto topNode = nodes->item(top, "$top");
    if (archiver != "NSKeyedArchiver" || !objects || !topNode || !nodes->isDictionary(*topNode)) {
        error = "the file is not a keyed archive";
        return std::nullopt;
    }
    Decoder<Nodes> decoder(*nodes, std::move(*objects), error);
    const auto root = decoder.reference(nodes->item(*topNode, "root"), "the archive's root");
    if (!root || !decoder.decode(*root, 1))
        return std::nullopt;
    return KeyedArchive(decoder.take(), *root, std::move(nodes));
}

std::optional<std::uint32_t> KeyedArchive::find(const ArchivedDictionary& dictionary,
                                                std::string_view key) const {
    for (const auto& [keyEntry, valueEntry] : dictionary.entries)
        if (const auto* text = std::get_if<std::string_view>(&objects_[keyEntry]);
            text && *text == key)
            return valueEntry;
    return std::nullopt;
}

} // namespace orrery
