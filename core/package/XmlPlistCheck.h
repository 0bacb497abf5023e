#pragma once

#include "core/package/PackageLimits.h"

#include <string>
#include <string_view>

namespace orrery {

// Scans an XML property list for its element nesting and element count without parsing
// it: libplist 2.2 frees (and copies) a tree recursively, so a file nested a million
// levels deep must never become a tree. Comments, processing instructions, the document
// type and CDATA sections are skipped the way the parser skips them.
bool checkXmlPropertyList(std::string_view bytes, const ParseLimits& limits, std::string& error);

} // namespace orrery
