#pragma once

#include "core/package/ProjectDocument.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace orrery {

// The extensions, without the dot, of the picture files that carry their system.
inline constexpr std::array<std::string_view, 5> kSystemPictureExtensions{"png", "tif", "tiff",
                                                                          "jpg", "jpeg"};
// Whether a file's name (any case) ends in one of them.
bool isSystemPictureName(std::string_view path);

// Opens what a person hands us as a system: a project package, or a picture that carries
// the system it was exported from (a PNG, TIFF or JPEG of ours). The picture is only read.
// On failure `error` is one line naming the path and the problem, for instance
// "/home/ann/sky.png: this picture carries no system".
bool readSystem(const std::filesystem::path& path, OpenedProject& project, std::string& error);

} // namespace orrery
