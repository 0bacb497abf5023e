#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

class QIODevice;

namespace orrery::imageio {

// Writes the bytes to a temporary file beside path, flushes it to disk and renames it over
// path, so that path holds either its old content or all of the new one, never a part.
// An existing file keeps its permissions. Returns an empty text on success, else the
// reason (for instance "Permission denied").
std::string writeFileAtomically(const std::string& path, std::span<const std::uint8_t> bytes);

// The same for content that `write` streams into the temporary file, so that a large picture
// is never held encoded in memory as well; `write` returns an empty text, or the reason it
// failed, and then nothing is renamed.
std::string writeFileAtomically(const std::string& path,
                                const std::function<std::string(QIODevice& file)>& write);

} // namespace orrery::imageio
