#pragma once

#include <cstddef>
#include <string>

namespace orrery::cli {

// Reads a whole file of at most maxBytes; on failure gives false and a reason without the
// path ("no such file", "a folder, not a file", "larger than 256 MB").
bool readFileText(const std::string& path, std::size_t maxBytes, std::string& text,
                  std::string& error);

// The extension of a path in lower case with its dot (".kvx"); a trailing slash, as the
// shell completes a package folder, is ignored.
std::string lowerExtension(const std::string& path);

} // namespace orrery::cli
