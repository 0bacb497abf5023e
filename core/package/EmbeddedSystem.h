#pragma once

#include "core/export/ExportFormat.h"
#include "core/package/PictureText.h"
#include "core/package/ProjectDocument.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The system a picture carries, so that the picture opens again as the system it shows: the
// JSON of `orrery convert`, ASCII only (other scripts as \u escapes), since editors keep a
// PNG's tEXt and zTXt chunks but drop its iTXt ones. A PNG keeps it in one zTXt chunk and a
// TIFF in its image description, keyed "orrery.system"; a JPEG comment segment holds less
// than 64 KB, so a JPEG keeps it in pieces keyed "orrery.system", "orrery.system.2", ...
namespace orrery {

inline constexpr std::string_view kSystemKeyword = "orrery.system";

// The text fields that carry the system in a picture of the format, in order.
std::vector<PictureText> systemTextFields(const OpenedProject& project, ExportFormat format);

// The system read back from a picture's bytes, checked as opening a package checks it. On
// failure `error` says why in a few words ("this picture carries no system").
bool systemFromPicture(std::span<const std::uint8_t> bytes, OpenedProject& project,
                       std::string& error);

} // namespace orrery
