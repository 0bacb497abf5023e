#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::imageio {

// Gives a TIFF file the image description `text` (tag 270), which Qt's writer cannot set: a
// copy of the first image file directory with the tag added is appended and the header
// points at it. Gives false, leaving `tiff` as it was, for bytes that are no classic TIFF.
bool setTiffDescription(std::vector<std::uint8_t>& tiff, std::string_view text);

} // namespace orrery::imageio
