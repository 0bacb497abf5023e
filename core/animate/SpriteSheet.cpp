#include "core/animate/SpriteSheet.h"

#include "core/animate/FrameFiles.h"
#include "core/animate/FrameTiming.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace orrery {
namespace {

// The characters JSON strings must escape; file names hold nothing else that needs care.
std::string jsonString(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", c);
            quoted += escape;
        } else {
            quoted += c;
        }
    }
    return quoted + "\"";
}

std::string sizeJson(int w, int h) {
    return "{\"w\": " + std::to_string(w) + ", \"h\": " + std::to_string(h) + "}";
}

} // namespace

SheetGrid sheetGrid(int frames, int frameWidth, int frameHeight) {
    SheetGrid grid;
    grid.columns = std::max(1, static_cast<int>(std::ceil(std::sqrt(static_cast<double>(frames)))));
    grid.rows = std::max(1, (frames + grid.columns - 1) / grid.columns);
    grid.frameWidth = frameWidth;
    grid.frameHeight = frameHeight;
    return grid;
}

SheetCell sheetCell(const SheetGrid& grid, int frame) {
    return {frame % grid.columns * grid.frameWidth, frame / grid.columns * grid.frameHeight};
}

std::string sheetAtlasJson(const SheetGrid& grid, int frames, int fps, std::string_view stem,
                           std::string_view imageName) {
    const std::string frameSize = sizeJson(grid.frameWidth, grid.frameHeight);
    std::string json = "{\n  \"frames\": [\n";
    for (int n = 0; n < frames; ++n) {
        const SheetCell cell = sheetCell(grid, n);
        json += "    {\"filename\": " + jsonString(frameFileName(stem, n)) +
                ", \"frame\": {\"x\": " + std::to_string(cell.x) +
                ", \"y\": " + std::to_string(cell.y) +
                ", \"w\": " + std::to_string(grid.frameWidth) +
                ", \"h\": " + std::to_string(grid.frameHeight) +
                "}, \"rotated\": false, \"trimmed\": false, \"spriteSourceSize\": {\"x\": 0, "
                "\"y\": 0, \"w\": " +
                std::to_string(grid.frameWidth) + ", \"h\": " + std::to_string(grid.frameHeight) +
                "}, \"sourceSize\": " + frameSize +
                ", \"duration\": " + std::to_string(frameLengthTicks(n, fps, 1000)) + "}" +
                (n + 1 < frames ? ",\n" : "\n");
    }
    json += "  ],\n  \"meta\": {\"app\": \"Orrery\", \"version\": \"" ORRERY_VERSION
            "\", \"image\": " +
            jsonString(imageName) +
            ", \"format\": \"RGBA8888\", \"size\": " + sizeJson(grid.width(), grid.height()) +
            ", \"scale\": \"1\", \"frameRate\": " + std::to_string(fps) + "}\n}\n";
    return json;
}

} // namespace orrery
