#pragma once

#include <string>
#include <string_view>

// A sprite sheet: every frame of a loop in one picture, in rows from the top left, and the
// atlas game engines read beside it (the JSON "array" form of TexturePacker, which Phaser,
// PixiJS, Godot's and Unity's importers and Aseprite's tools all read).
namespace orrery {

// The largest side of a sheet: what a PNG of that size needs in memory is still a picture.
inline constexpr int kLargestSheetSide = 16384;

struct SheetGrid {
    int columns = 1;
    int rows = 1;
    int frameWidth = 0;
    int frameHeight = 0;
    int width() const { return columns * frameWidth; }
    int height() const { return rows * frameHeight; }
};

// As square a sheet as whole frames make: ceil(sqrt(frames)) columns, as few rows as needed.
SheetGrid sheetGrid(int frames, int frameWidth, int frameHeight);

struct SheetCell {
    int x = 0;
    int y = 0;
};
// Where frame n's top-left corner lies on the sheet.
SheetCell sheetCell(const SheetGrid& grid, int frame);

// The atlas: for every frame its name (as frameFileName gives it), rectangle and duration in
// milliseconds; the sheet's file name and size.
std::string sheetAtlasJson(const SheetGrid& grid, int frames, int fps, std::string_view stem,
                           std::string_view imageName);

} // namespace orrery
