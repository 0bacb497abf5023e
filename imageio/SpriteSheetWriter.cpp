#include "imageio/SpriteSheetWriter.h"

#include "core/animate/SpriteSheet.h"
#include "imageio/AtomicWrite.h"
#include "imageio/ImageFile.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

namespace orrery::imageio {
namespace {

class SpriteSheetWriter final : public AnimationWriter {
public:
    SpriteSheetWriter(std::string path, const AnimationSettings& settings, SheetGrid grid)
        : path_(std::move(path)), settings_(settings), grid_(grid),
          sheet_(grid.width(), grid.height()) {}

    std::string addFrame(const Image& frame) override {
        const SheetCell cell = sheetCell(grid_, frame_++);
        const int width = std::min(frame.width, grid_.frameWidth);
        for (int y = 0; y < std::min(frame.height, grid_.frameHeight); ++y)
            std::memcpy(sheet_.pixel(cell.x, cell.y + y), frame.pixel(0, y),
                        static_cast<std::size_t>(width) * 4);
        return {};
    }

    std::string finish() override {
        std::string error = writeImageFile(sheet_, path_, ExportFormat::png, 1.0f);
        if (!error.empty())
            return error;
        const std::string stem = std::filesystem::path(path_).stem().string();
        const std::string atlas = sheetAtlasJson(grid_, settings_.frames, settings_.fps, stem,
                                                 std::filesystem::path(path_).filename().string());
        error = writeFileAtomically(
            atlasPathFor(path_),
            std::span(reinterpret_cast<const std::uint8_t*>(atlas.data()), atlas.size()));
        return error.empty() ? std::string() : atlasPathFor(path_) + ": " + error;
    }

    // Nothing reaches the disk before finish().
    void abandon() override { sheet_ = Image(); }

private:
    std::string path_;
    AnimationSettings settings_;
    SheetGrid grid_;
    Image sheet_;
    int frame_ = 0;
};

} // namespace

std::string atlasPathFor(const std::string& sheetPath) {
    return std::filesystem::path(sheetPath).replace_extension(".json").string();
}

std::unique_ptr<AnimationWriter>
beginSpriteSheet(const std::string& path, const AnimationSettings& settings, std::string& error) {
    const SheetGrid grid = sheetGrid(settings.frames, settings.width, settings.height);
    if (grid.width() > kLargestSheetSide || grid.height() > kLargestSheetSide) {
        error = "a sprite sheet of " + std::to_string(settings.frames) + " frames of " +
                std::to_string(settings.width) + " x " + std::to_string(settings.height) +
                " would be " + std::to_string(grid.width()) + " x " +
                std::to_string(grid.height()) + " pixels; a sheet is at most " +
                std::to_string(kLargestSheetSide) + " a side (fewer frames or a smaller scale)";
        return nullptr;
    }
    return std::make_unique<SpriteSheetWriter>(path, settings, grid);
}

} // namespace orrery::imageio
