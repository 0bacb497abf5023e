#include "imageio/FrameSequence.h"

#include "core/animate/FrameFiles.h"
#include "imageio/FrameWorkers.h"
#include "imageio/PendingFile.h"
#include "imageio/PngBands.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <vector>

namespace orrery::imageio {
namespace {

namespace fs = std::filesystem;

// Everything written into the folder, on disk: one sync for all the frames rather than one
// each. An empty text, or why not.
std::string syncFolder(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return std::strerror(errno);
    const int synced = syncfs(descriptor);
    const std::string error = synced == 0 ? std::string() : std::strerror(errno);
    close(descriptor);
    return error;
}

// Each frame is compressed on a worker, several at once, and written in order, whole or not
// at all: a file of its own renamed into place once complete.
class FrameSequence final : public AnimationWriter {
public:
    FrameSequence(fs::path folder, bool madeFolder, const AnimationSettings& settings)
        : folder_(std::move(folder)), stem_(frameStem(folder_.string())), madeFolder_(madeFolder),
          frame_(settings.firstFrame), workers_([this](EncodedImage png) { return put(png); }) {}
    ~FrameSequence() override {
        if (!finished_)
            abandon();
    }

    std::string addFrame(Image frame) override {
        return workers_.add([image = std::move(frame)]() { return encodeFastPng(image); });
    }

    std::string finish() override {
        std::string error = workers_.finish();
        if (error.empty())
            error = syncFolder(folder_);
        if (!error.empty()) {
            abandon();
            return error;
        }
        finished_ = true;
        return {};
    }

    void abandon() override {
        workers_.abandon();
        std::error_code ignored;
        for (const fs::path& file : written_)
            fs::remove(file, ignored);
        written_.clear();
        if (madeFolder_)
            fs::remove(folder_, ignored); // only when empty
        finished_ = true;
    }

private:
    // Writes the next frame's file.
    std::string put(const EncodedImage& png) {
        const fs::path file = folder_ / frameFileName(stem_, frame_++);
        std::string error = png.error;
        std::unique_ptr<PendingFile> pending;
        if (error.empty())
            pending = PendingFile::create(file.string(), error);
        if (pending)
            error = pending->write(png.bytes.data(), png.bytes.size());
        if (error.empty())
            error = pending->commit(PendingFile::Sync::later);
        if (!error.empty())
            return file.string() + ": " + error;
        written_.push_back(file);
        return {};
    }

    fs::path folder_;
    std::string stem_;
    bool madeFolder_;
    int frame_;
    std::vector<fs::path> written_;
    bool finished_ = false;
    FrameWorkers<EncodedImage> workers_; // last: its threads finish before the rest goes
};

} // namespace

std::unique_ptr<AnimationWriter> beginFrameSequence(const std::string& folder,
                                                    const AnimationSettings& settings,
                                                    std::string& error) {
    const fs::path path(folder);
    std::error_code failure;
    bool made = false;
    if (!fs::is_directory(path, failure)) {
        if (fs::exists(path, failure)) {
            error = "a file is in the way of the folder";
            return nullptr;
        }
        made = fs::create_directory(path, failure);
        if (!made) {
            error = "the folder could not be made: " + failure.message();
            return nullptr;
        }
    }
    return std::make_unique<FrameSequence>(path, made, settings);
}

} // namespace orrery::imageio
