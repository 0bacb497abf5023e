#pragma once

#include "core/package/PackageLimits.h"

#include <plist/plist.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A thin, safe layer over libplist: parsing only after the structure checks, ownership
// of trees, and the few accessors the package code needs.
namespace orrery {

struct PlistFree {
    void operator()(void* node) const { plist_free(node); }
};
using PlistPtr = std::unique_ptr<void, PlistFree>;

// Parses a binary ("bplist00") or XML property list once its structure has passed
// checkBinaryPropertyList or checkXmlPropertyList; nullptr and a message otherwise.
// The string's terminating NUL keeps libplist's text scanners inside the buffer.
PlistPtr parsePropertyList(const std::string& bytes, const ParseLimits& limits, std::string& error);

// The items of an array node in order. libplist keeps an array as a linked list, so
// fetching items one index at a time would be quadratic.
std::vector<plist_t> arrayItems(plist_t array);

// The text of a string node; nothing for any other node.
std::optional<std::string_view> stringValue(plist_t node);

} // namespace orrery
