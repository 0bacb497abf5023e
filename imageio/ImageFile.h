#pragma once

#include "core/export/ExportFormat.h"
#include "core/package/PictureText.h"
#include "core/styles/Image.h"

#include <optional>
#include <string>
#include <vector>

namespace orrery::imageio {

// Encodes the picture and writes it to path in one step: the file appears whole or not at
// all, and a file already at path survives a failure untouched. Returns an empty text on
// success, else the reason (without the path), for instance "Permission denied". PNG,
// TIFF and JPEG carry the text fields (see encodeWithQt); the other formats leave them out.
std::string writeImageFile(const Image& image, const std::string& path, ExportFormat format,
                           float compression, const std::vector<PictureText>& texts = {});

// Reads any picture this program writes (and what Qt reads), straight alpha, top row first.
// Gives none, with the reason, for a missing, unreadable or damaged file.
std::optional<Image> readImageFile(const std::string& path, std::string& error);
inline std::optional<Image> readImageFile(const std::string& path) {
    std::string ignored;
    return readImageFile(path, ignored);
}

} // namespace orrery::imageio
