#include "imageio/AnimatedWebp.h"

#include "core/animate/FrameTiming.h"
#include "imageio/PendingWriter.h"

#include <webp/encode.h>
#include <webp/mux.h>

namespace orrery::imageio {
namespace {

constexpr int kLargestWebpSide = 16383;
constexpr int kMilliseconds = 1000;
constexpr int kLosslessEffort = 2; // of libwebp's 0 (fastest) to 9 (smallest)

struct EncoderDeleter {
    void operator()(WebPAnimEncoder* p) const { WebPAnimEncoderDelete(p); }
};

class AnimatedWebp final : public AnimationWriter {
public:
    AnimatedWebp(std::unique_ptr<PendingFile> file, const AnimationSettings& settings)
        : file_(std::move(file)), settings_(settings) {}

    std::string start() {
        WebPAnimEncoderOptions options;
        if (!WebPAnimEncoderOptionsInit(&options) || !WebPConfigInit(&config_))
            return "the WebP library does not match its headers";
        options.anim_params.loop_count = 0; // forever
        options.anim_params.bgcolor = 0x00000000;
        // No key frame but the first: every later frame is the part that changed, laid over
        // the one before, as players play a loop anyway. Weighing a key frame against each
        // delta would encode the frame twice, for a file no smaller.
        options.kmax = 0;
        if (settings_.compression >= 1.0f) {
            // Lossless at a low effort: under a tenth of the time of the highest, for a file
            // some 5 % larger.
            config_.lossless = 1;
            WebPConfigLosslessPreset(&config_, kLosslessEffort);
        } else {
            config_.quality = settings_.compression * 100.0f;
            config_.method = 4;
            // The alpha plane (lossless inside a lossy frame) unfiltered: a turntable's edges
            // compress no better for the filter search, which costs a quarter of the time.
            config_.alpha_filtering = 0;
        }
        encoder_.reset(WebPAnimEncoderNew(settings_.width, settings_.height, &options));
        if (!encoder_)
            return "the WebP animation encoder could not start";
        return {};
    }

    std::string addFrame(Image frame) override {
        WebPPicture picture;
        if (!WebPPictureInit(&picture))
            return "the WebP library does not match its headers";
        picture.use_argb = 1;
        picture.width = frame.width;
        picture.height = frame.height;
        const bool imported = WebPPictureImportRGBA(&picture, frame.pixels.data(),
                                                    static_cast<int>(frame.stride())) != 0;
        const bool added =
            imported && WebPAnimEncoderAdd(encoder_.get(), &picture, startOf(frame_), &config_);
        WebPPictureFree(&picture);
        if (!added)
            return failure("a frame could not be encoded");
        ++frame_;
        return {};
    }

    std::string finish() override {
        WebPData data;
        WebPDataInit(&data);
        if (!WebPAnimEncoderAdd(encoder_.get(), nullptr, startOf(frame_), nullptr) ||
            !WebPAnimEncoderAssemble(encoder_.get(), &data))
            return failure("the animation could not be assembled");
        std::string error = file_->write(data.bytes, data.size);
        if (error.empty())
            error = file_->commit();
        WebPDataClear(&data);
        encoder_.reset();
        return error;
    }

    // The file stays empty until finish(): the encoder holds the animation.
    void abandon() override {
        encoder_.reset();
        file_->abandon();
    }

private:
    int startOf(int frame) const { return frameStartTicks(frame, settings_.fps, kMilliseconds); }
    std::string failure(const std::string& what) const {
        const char* detail = WebPAnimEncoderGetError(encoder_.get());
        return what + (detail && *detail ? std::string(": ") + detail : std::string());
    }

    std::unique_ptr<PendingFile> file_;
    AnimationSettings settings_;
    WebPConfig config_{};
    std::unique_ptr<WebPAnimEncoder, EncoderDeleter> encoder_;
    int frame_ = 0;
};

} // namespace

std::unique_ptr<AnimationWriter>
beginAnimatedWebp(const std::string& path, const AnimationSettings& settings, std::string& error) {
    if (settings.width > kLargestWebpSide || settings.height > kLargestWebpSide) {
        error = "a WebP picture is at most 16383 pixels wide and high";
        return nullptr;
    }
    return startPendingWriter<AnimatedWebp>(path, error, settings);
}

} // namespace orrery::imageio
