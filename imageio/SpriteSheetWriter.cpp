#include "imageio/SpriteSheetWriter.h"

#include "core/animate/SpriteSheet.h"
#include "imageio/AtomicWrite.h"
#include "imageio/FrameWorkers.h"
#include "imageio/PendingWriter.h"
#include "imageio/PngBands.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

namespace orrery::imageio {
namespace {

// The sheet is written as a stream of strips, one row of frames each: a strip is compressed
// on a worker as soon as its last frame is in, while the next frames are drawn, so neither
// the whole sheet nor its compression waits for the end.
class SpriteSheetWriter final : public AnimationWriter {
public:
    SpriteSheetWriter(std::unique_ptr<PendingFile> file, const AnimationSettings& settings,
                      SheetGrid grid)
        : file_(std::move(file)), settings_(settings), grid_(grid), strip_(emptyStrip()),
          workers_([this](PngBand band) { return put(band); }) {}
    ~SpriteSheetWriter() override { abandon(); }

    std::string start() {
        const std::vector<std::uint8_t> start = pngStart(grid_.width(), grid_.height());
        return file_->write(start.data(), start.size());
    }

    std::string addFrame(Image frame) override {
        const int column = frame_++ % grid_.columns;
        const int width = std::min(frame.width, grid_.frameWidth);
        for (int y = 0; y < std::min(frame.height, grid_.frameHeight); ++y)
            std::memcpy(strip_.pixel(column * grid_.frameWidth, y), frame.pixel(0, y),
                        static_cast<std::size_t>(width) * 4);
        return column == grid_.columns - 1 ? compressStrip() : std::string();
    }

    std::string finish() override {
        std::string error;
        // The last strip may be short of frames; its empty cells stay transparent.
        while (error.empty() && strips_ < grid_.rows)
            error = compressStrip();
        if (error.empty())
            error = workers_.finish();
        const std::vector<std::uint8_t> end = end_.bytes();
        if (error.empty())
            error = file_->write(end.data(), end.size());
        if (error.empty())
            error = file_->commit();
        if (!error.empty()) {
            abandon();
            return error;
        }
        const std::string stem = std::filesystem::path(path()).stem().string();
        const std::string atlas = sheetAtlasJson(grid_, settings_.frames, settings_.fps, stem,
                                                 std::filesystem::path(path()).filename().string());
        error = writeFileAtomically(
            atlasPathFor(path()),
            std::span(reinterpret_cast<const std::uint8_t*>(atlas.data()), atlas.size()));
        return error.empty() ? std::string() : atlasPathFor(path()) + ": " + error;
    }

    void abandon() override {
        workers_.abandon();
        file_->abandon();
    }

private:
    const std::string& path() const { return file_->targetPath(); }
    Image emptyStrip() const { return Image(grid_.width(), grid_.frameHeight); }

    std::string compressStrip() {
        const bool last = ++strips_ == grid_.rows;
        return workers_.add([strip = std::exchange(strip_, emptyStrip()), last]() {
            return compressPngBand(strip, last, PngEffort::usual);
        });
    }

    std::string put(const PngBand& band) {
        if (band.chunk.empty())
            return "the sheet could not be compressed";
        end_.add(band);
        return file_->write(band.chunk.data(), band.chunk.size());
    }

    std::unique_ptr<PendingFile> file_;
    AnimationSettings settings_;
    SheetGrid grid_;
    Image strip_; // the row of frames being filled
    int frame_ = 0;
    int strips_ = 0; // handed to the workers
    PngEnd end_;
    FrameWorkers<PngBand> workers_; // last: its threads finish before the rest goes
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
    return startPendingWriter<SpriteSheetWriter>(path, error, settings, grid);
}

} // namespace orrery::imageio
