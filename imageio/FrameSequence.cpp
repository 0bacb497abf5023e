#include "imageio/FrameSequence.h"

#include "core/animate/FrameFiles.h"
#include "imageio/AtomicWrite.h"
#include "imageio/QtImageEncoder.h"

#include <filesystem>
#include <vector>

namespace orrery::imageio {
namespace {

namespace fs = std::filesystem;

class FrameSequence final : public AnimationWriter {
public:
    FrameSequence(fs::path folder, bool madeFolder, const AnimationSettings& settings)
        : folder_(std::move(folder)), stem_(frameStem(folder_.string())), madeFolder_(madeFolder),
          frame_(settings.firstFrame) {}
    ~FrameSequence() override {
        if (!finished_)
            abandon();
    }

    std::string addFrame(const Image& frame) override {
        const fs::path file = folder_ / frameFileName(stem_, frame_++);
        const std::string error = writeFileAtomically(
            file.string(), [&frame](QIODevice& device) { return writeFramePng(frame, device); });
        if (!error.empty())
            return file.string() + ": " + error;
        written_.push_back(file);
        return {};
    }

    std::string finish() override {
        finished_ = true;
        return {};
    }

    void abandon() override {
        std::error_code ignored;
        for (const fs::path& file : written_)
            fs::remove(file, ignored);
        written_.clear();
        if (madeFolder_)
            fs::remove(folder_, ignored); // only when empty
        finished_ = true;
    }

private:
    fs::path folder_;
    std::string stem_;
    bool madeFolder_;
    int frame_;
    std::vector<fs::path> written_;
    bool finished_ = false;
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
