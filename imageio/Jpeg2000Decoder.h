#pragma once

#include "core/styles/Image.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orrery::imageio {

// True when the bytes start like a JP2 file or a bare JPEG 2000 codestream.
bool looksLikeJpeg2000(std::span<const std::uint8_t> bytes);

// Decodes 8-bit grey, grey + alpha, RGB or RGBA JPEG 2000 (the kinds this program
// writes and most others do). Anything else, or a damaged file, gives none and a reason.
std::optional<Image> decodeJpeg2000(std::vector<std::uint8_t> bytes, std::string& error);

} // namespace orrery::imageio
