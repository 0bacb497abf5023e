#pragma once

#include "core/app/DocumentArea.h"

#include <optional>
#include <string>

namespace orrery {

// What a system holds beside its planets, camera and light: the size of its picture as the
// size fields hold it (text, exactly as typed or read from the package) and the number of
// the background colour behind it.
struct DocumentSettings {
    std::string width = "960";
    std::string height = "540";
    long background = 0;
    friend bool operator==(const DocumentSettings&, const DocumentSettings&) = default;
};

// The picture's size in pixels when both texts are sizes a package may carry (wider limits
// than typing allows); none while a refused text stands in a field.
std::optional<PixelSize> pictureSize(const DocumentSettings& settings);

} // namespace orrery
