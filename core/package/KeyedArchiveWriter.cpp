#include "core/package/KeyedArchiveWriter.h"

#include "core/package/ArchivedColor.h"
#include "core/package/ColorComponents.h"

#include <array>

namespace orrery {
namespace {
constexpr std::int64_t kArchiveVersion = 100000;
} // namespace

std::vector<std::string_view> KeyedArchiveWriter::classChain(ClassName name) {
    switch (name) {
    case ClassName::array:
        return {"NSArray", "NSObject"};
    case ClassName::mutableArray:
        return {"NSMutableArray", "NSArray", "NSObject"};
    case ClassName::dictionary:
        return {"NSDictionary", "NSObject"};
    case ClassName::color:
        return {"NSColor", "NSObject"};
    }
    return {};
}

KeyedArchiveWriter::KeyedArchiveWriter() {
    add(plist_.text("$null"));
}

KeyedArchiveWriter::Entry KeyedArchiveWriter::add(BinaryPlistWriter::Ref object) {
    objects_.push_back(object);
    return static_cast<Entry>(objects_.size() - 1);
}

KeyedArchiveWriter::Entry KeyedArchiveWriter::text(std::string_view value) {
    const BinaryPlistWriter::Ref ref = plist_.text(value);
    const auto found = textEntries_.find(ref);
    if (found != textEntries_.end())
        return found->second;
    const Entry entry = add(ref);
    textEntries_.emplace(ref, entry);
    return entry;
}

KeyedArchiveWriter::Entry KeyedArchiveWriter::classEntry(ClassName name) {
    const auto found = classEntries_.find(name);
    if (found != classEntries_.end())
        return found->second;
    const std::vector<std::string_view> chain = classChain(name);
    std::vector<BinaryPlistWriter::Ref> names;
    for (std::string_view className : chain)
        names.push_back(plist_.text(className));
    const std::array<std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref>, 2> fields{{
        {plist_.text("$classname"), names.front()},
        {plist_.text("$classes"), plist_.array(names)},
    }};
    const Entry entry = add(plist_.dictionary(fields));
    classEntries_.emplace(name, entry);
    return entry;
}

BinaryPlistWriter::Ref KeyedArchiveWriter::objectWithClass(
    std::vector<std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref>> fields, ClassName name) {
    fields.emplace_back(plist_.text("$class"), plist_.uid(classEntry(name)));
    return plist_.dictionary(fields);
}

BinaryPlistWriter::Ref KeyedArchiveWriter::uidList(std::span<const Entry> entries) {
    std::vector<BinaryPlistWriter::Ref> uids;
    uids.reserve(entries.size());
    for (Entry entry : entries)
        uids.push_back(plist_.uid(entry));
    return plist_.array(uids);
}

KeyedArchiveWriter::Entry KeyedArchiveWriter::color(const Color& color) {
    return add(objectWithClass({{plist_.text("NSColorSpace"), plist_.integer(kCalibratedRgbSpace)},
                                {plist_.text("NSRGB"), plist_.data(rgbComponentsText(color))}},
                               ClassName::color));
}

KeyedArchiveWriter::Entry KeyedArchiveWriter::array(std::span<const Entry> items,
                                                    ArrayClass arrayClass) {
    return add(objectWithClass({{plist_.text("NS.objects"), uidList(items)}},
                               arrayClass == ArrayClass::array ? ClassName::array
                                                               : ClassName::mutableArray));
}

KeyedArchiveWriter::Entry
KeyedArchiveWriter::dictionary(std::span<const std::pair<Entry, Entry>> entries) {
    std::vector<Entry> keys;
    std::vector<Entry> values;
    keys.reserve(entries.size());
    values.reserve(entries.size());
    for (const auto& [key, value] : entries) {
        keys.push_back(key);
        values.push_back(value);
    }
    return add(objectWithClass(
        {{plist_.text("NS.keys"), uidList(keys)}, {plist_.text("NS.objects"), uidList(values)}},
        ClassName::dictionary));
}

bool KeyedArchiveWriter::finish(Entry root, const ParseLimits& limits, std::string& bytes,
                                std::string& error) {
    const std::array<std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref>, 1> topFields{{
        {plist_.text("root"), plist_.uid(root)},
    }};
    const std::array<std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref>, 4> fields{{
        {plist_.text("$archiver"), plist_.text("NSKeyedArchiver")},
        {plist_.text("$version"), plist_.integer(kArchiveVersion)},
        {plist_.text("$top"), plist_.dictionary(topFields)},
        {plist_.text("$objects"), plist_.array(objects_)},
    }};
    const BinaryPlistWriter::Ref top = plist_.dictionary(fields);
    if (plist_.nodeCount(top) > limits.maxNodes) {
        error = "it would hold " + std::to_string(plist_.nodeCount(top)) +
                " property-list nodes, more than the " + std::to_string(limits.maxNodes) +
                " a package may hold";
        return false;
    }
    std::string encoded = plist_.finish(top);
    if (encoded.size() > limits.maxBytes) {
        error = "it would take " + std::to_string(encoded.size()) + " bytes, more than the " +
                std::to_string(limits.maxBytes) + " a package file may take";
        return false;
    }
    bytes = std::move(encoded);
    return true;
}

} // namespace orrery
