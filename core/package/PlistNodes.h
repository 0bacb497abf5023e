#pragma once

#include "core/package/BinaryPlist.h"
#include "core/package/PropertyList.h"

#include <plist/plist.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Read access to the objects of a parsed property list, the same for both forms, so that
// one keyed-archive decoder serves them: a binary list is read in place from its bytes,
// an XML list from the tree libplist builds. Each answers only for a node of the asked
// type; every other node gives nothing.
namespace orrery {

// Over the bytes of a binary list that passed checkBinaryPropertyList; the bytes must
// outlive it. Texts point into the bytes, or, for UTF-16 texts, into the UTF-8 copies
// this keeps.
class BinaryPlistNodes {
public:
    using Node = std::uint64_t; // object index

    explicit BinaryPlistNodes(std::string_view bytes);

    Node top() const { return plist_.top(); }
    std::optional<std::string_view> text(Node node) const;
    std::optional<std::string_view> data(Node node) const;
    std::optional<std::uint64_t> unsignedInteger(Node node) const;
    std::optional<std::uint64_t> uid(Node node) const;
    bool isDictionary(Node node) const;
    std::size_t dictionarySize(Node node) const;
    std::optional<Node> item(Node dictionary, std::string_view key) const;
    std::optional<std::vector<Node>> items(Node array) const;

private:
    std::optional<BinaryObject> object(Node node) const;

    BinaryPlist plist_;
    mutable std::unordered_map<Node, std::string> utf8Texts_;
};

// Over a libplist tree, which it owns.
class XmlPlistNodes {
public:
    using Node = plist_t;

    explicit XmlPlistNodes(PlistPtr tree) : tree_(std::move(tree)) {}

    Node top() const { return tree_.get(); }
    std::optional<std::string_view> text(Node node) const { return stringValue(node); }
    std::optional<std::string_view> data(Node node) const;
    std::optional<std::uint64_t> unsignedInteger(Node node) const;
    std::optional<std::uint64_t> uid(Node node) const;
    bool isDictionary(Node node) const;
    std::size_t dictionarySize(Node node) const;
    std::optional<Node> item(Node dictionary, std::string_view key) const;
    std::optional<std::vector<Node>> items(Node array) const;

private:
    PlistPtr tree_;
};

} // namespace orrery
