#pragma once

#include "core/model/Color.h"
#include "core/package/BinaryPlistWriter.h"
#include "core/package/PackageLimits.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orrery {

// Builds a keyed archive in the NSKeyedArchiver layout: a binary property list
// {"$archiver": "NSKeyedArchiver", "$version": 100000, "$top": {"root": UID},
// "$objects": [...]} whose entry 0 is "$null". Equal texts share one entry, which keeps a
// planet list with many repeated values small.
class KeyedArchiveWriter {
public:
    using Entry = std::uint32_t; // index into "$objects"

    enum class ArrayClass { array, mutableArray };

    KeyedArchiveWriter();

    Entry text(std::string_view value);
    // A calibrated RGB colour.
    Entry color(const Color& color);
    Entry array(std::span<const Entry> items, ArrayClass arrayClass);
    // An NSDictionary; keys must be text entries.
    Entry dictionary(std::span<const std::pair<Entry, Entry>> entries);

    // The archive with `root` as its root object; the writer is used up. Fails, with a message,
    // when the result would exceed `limits`, so that nothing is written that the reader would
    // refuse.
    bool finish(Entry root, const ParseLimits& limits, std::string& bytes, std::string& error);

private:
    enum class ClassName { array, mutableArray, dictionary, color };

    // The class with its chain of superclasses, most derived first.
    static std::vector<std::string_view> classChain(ClassName name);

    Entry add(BinaryPlistWriter::Ref object);
    Entry classEntry(ClassName name);
    BinaryPlistWriter::Ref
    objectWithClass(std::vector<std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref>> fields,
                    ClassName name);
    BinaryPlistWriter::Ref uidList(std::span<const Entry> entries);

    BinaryPlistWriter plist_;
    std::vector<BinaryPlistWriter::Ref> objects_;
    std::unordered_map<BinaryPlistWriter::Ref, Entry> textEntries_;
    std::unordered_map<ClassName, Entry> classEntries_;
};

} // namespace orrery
