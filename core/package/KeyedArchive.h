#pragma once

#include "core/model/Color.h"
#include "core/package/PackageLimits.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orrery {

// Entries of an archive's object table ("$objects") once decoded. Containers hold the
// table indices of what they contain, so an entry shared by many places is decoded once;
// texts are not copied but point into the property list.
struct ArchivedNull {};
struct ArchivedArray {
    std::vector<std::uint32_t> items;
};
struct ArchivedDictionary {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> entries; // key entry, value entry
};
using ArchivedObject =
    std::variant<ArchivedNull, std::string_view, Color, ArchivedArray, ArchivedDictionary>;

// A keyed archive (the object table of an NSKeyedArchiver property list) as the package
// reader sees it: texts, arrays, dictionaries and colours, the only classes a package
// holds; anything else is refused. Both forms of reference are accepted, the UID type of
// binary lists and the {"CF$UID": n} dictionary of XML ones. Decoding refuses references
// out of range, cycles, keys and objects of different counts, class entries that are no
// class descriptions and nesting deeper than kMaxNestingDepth.
class KeyedArchive {
public:
    // Parses the bytes (binary or XML property list within `limits`) and decodes them. A
    // binary list is read in place: its texts point into `bytes`, which must outlive the
    // archive. Beyond the bytes, memory stays within a few dozen bytes per table entry.
    static std::optional<KeyedArchive> read(const std::string& bytes, const ParseLimits& limits,
                                            std::string& error);

    std::uint32_t root() const { return root_; }
    // Entries the root does not reach read as ArchivedNull.
    const ArchivedObject& object(std::uint32_t entry) const { return objects_[entry]; }
    // The value entry stored under `key`, the first when a key repeats.
    std::optional<std::uint32_t> find(const ArchivedDictionary& dictionary,
                                      std::string_view key) const;

private:
    KeyedArchive(std::vector<ArchivedObject> objects, std::uint32_t root,
                 std::shared_ptr<const void> textStorage)
        : objects_(std::move(objects)), root_(root), textStorage_(std::move(textStorage)) {}

    template <typename Nodes>
    static std::optional<KeyedArchive> decode(std::shared_ptr<const Nodes> nodes,
                                              std::string& error);

    std::vector<ArchivedObject> objects_;
    std::uint32_t root_;
    // What texts point into besides the caller's bytes: an XML tree, converted UTF-16 texts.
    std::shared_ptr<const void> textStorage_;
};

} // namespace orrery
