#include "core/animate/SpriteSheet.h"
#include "core/animate/FrameFiles.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace orrery {
namespace {

TEST(SpriteSheet, GridHoldsEveryFrameInAsFewRowsAsNeeded) {
    struct Row {
        int frames;
        int columns;
        int rows;
    };
    for (const Row row :
         {Row{2, 2, 1}, Row{4, 2, 2}, Row{5, 3, 2}, Row{48, 7, 7}, Row{720, 27, 27}}) {
        const SheetGrid grid = sheetGrid(row.frames, 10, 6);
        EXPECT_EQ(grid.columns, row.columns) << row.frames;
        EXPECT_EQ(grid.rows, row.rows) << row.frames;
        EXPECT_EQ(grid.width(), row.columns * 10);
        EXPECT_EQ(grid.height(), row.rows * 6);
    }
}

TEST(SpriteSheet, AtlasMatchesTheGrid) {
    const SheetGrid grid = sheetGrid(5, 30, 20);
    const auto atlas = nlohmann::json::parse(sheetAtlasJson(grid, 5, 24, "my \"spin\"", "s.png"));
    EXPECT_EQ(atlas["meta"]["image"], "s.png");
    EXPECT_EQ(atlas["meta"]["size"], (nlohmann::json{{"w", 90}, {"h", 40}}));
    const auto& frames = atlas["frames"];
    ASSERT_EQ(frames.size(), 5u);
    int duration = 0;
    for (int n = 0; n < 5; ++n) {
        const auto& entry = frames[static_cast<std::size_t>(n)];
        EXPECT_EQ(entry["filename"], frameFileName("my \"spin\"", n));
        const SheetCell cell = sheetCell(grid, n);
        EXPECT_EQ(entry["frame"],
                  (nlohmann::json{{"x", cell.x}, {"y", cell.y}, {"w", 30}, {"h", 20}}));
        EXPECT_EQ(entry["sourceSize"], (nlohmann::json{{"w", 30}, {"h", 20}}));
        duration += entry["duration"].get<int>();
    }
    // Left to right, then the next row.
    EXPECT_EQ(frames[3]["frame"]["x"], 0);
    EXPECT_EQ(frames[3]["frame"]["y"], 20);
    EXPECT_EQ(duration, 208); // 5 frames at 24 a second, to the millisecond
}

} // namespace
} // namespace orrery
