#pragma once

#include "core/package/PackageLimits.h"

#include <string>
#include <string_view>

namespace orrery {

// Walks the structure of a binary property list ("bplist00") without building it and
// without recursion: trailer and offset table in range, every reachable object well formed
// and inside the object area, references in range, dictionary keys that are text, no
// cycles, nesting within kMaxNestingDepth, and a tree of at most limits.maxNodes nodes
// and at most about four nodes per byte of the file.
// Only bytes that pass this check may be read: the in-place reader (BinaryPlist) then
// follows references without checking them again, and libplist 2.2 recurses once per
// nesting level and copies a shared object at every reference.
bool checkBinaryPropertyList(std::string_view bytes, const ParseLimits& limits, std::string& error);

} // namespace orrery
