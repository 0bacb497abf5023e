#pragma once

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

} // namespace orrery
