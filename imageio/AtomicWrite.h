#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace orrery::imageio {

// Writes the bytes to a temporary file beside path, flushes it to disk and renames it over
// path, so that path holds either its old content or all of the new one, never a part.
// An existing file keeps its permissions. Returns an empty text on success, else the
// reason (for instance "Permission denied").
std::string writeFileAtomically(const std::string& path, std::span<const std::uint8_t> bytes);

} // namespace orrery::imageio
