#include "imageio/AnimatedGif.h"

#include "core/animate/FrameTiming.h"
#include "imageio/FrameWorkers.h"
#include "imageio/GifEncoder.h"
#include "imageio/GifPalette.h"
#include "imageio/PendingWriter.h"

#include <gif_lib.h>

namespace orrery::imageio {
namespace {

constexpr int kCentiseconds = 100;

int writeToPending(GifFileType* gif, const GifByteType* data, int length) {
    auto* file = static_cast<PendingFile*>(gif->UserData);
    return file->write(data, static_cast<std::size_t>(length)).empty() ? length : 0;
}

// The NETSCAPE2.0 application block: repeat count 0 is forever.
bool putLoopForever(GifFileType* gif) {
    static const GifByteType kName[] = "NETSCAPE2.0";
    static const GifByteType kForever[] = {1, 0, 0};
    return EGifPutExtensionLeader(gif, APPLICATION_EXT_FUNC_CODE) != GIF_ERROR &&
           EGifPutExtensionBlock(gif, 11, kName) != GIF_ERROR &&
           EGifPutExtensionBlock(gif, 3, kForever) != GIF_ERROR &&
           EGifPutExtensionTrailer(gif) != GIF_ERROR;
}

// A frame reduced to its palette, or why it could not be.
struct QuantizedFrame {
    std::optional<IndexedImage> indexed;
    std::string error;
    int width = 0;
    int height = 0;
};

QuantizedFrame quantizedFrame(const Image& frame, std::optional<IndexedImage> indexed,
                              std::string error) {
    return {std::move(indexed), std::move(error), frame.width, frame.height};
}

// Each frame with a palette of its own is quantised on a worker, several at once, and
// written in order; with one palette for the loop every frame is mapped to that one palette
// object, one after another.
class AnimatedGif final : public AnimationWriter {
public:
    AnimatedGif(std::unique_ptr<PendingFile> file, const AnimationSettings& settings)
        : file_(std::move(file)), settings_(settings),
          loopPalette_(settings.loopPalette ? std::make_unique<LoopPalette>(kStillQuantizeSpeed)
                                            : nullptr),
          workers_([this](QuantizedFrame frame) { return put(frame); }) {}
    ~AnimatedGif() override { abandon(); }

    std::string start() {
        int openError = 0;
        gif_ = EGifOpen(file_.get(), writeToPending, &openError);
        if (gif_ == nullptr)
            return gifErrorText(openError);
        // The loop block and the transparent index need GIF89a.
        EGifSetGifVersion(gif_, true);
        if (EGifPutScreenDesc(gif_, settings_.width, settings_.height, 8, 0, nullptr) ==
                GIF_ERROR ||
            !putLoopForever(gif_))
            return gifErrorText(gif_->Error);
        return {};
    }

    bool samplesFirst() const override { return loopPalette_ != nullptr; }
    std::string sample(const Image& frame) override { return loopPalette_->add(frame); }

    std::string addFrame(Image frame) override {
        if (loopPalette_) {
            std::string error;
            std::optional<IndexedImage> indexed = loopPalette_->remap(frame, error);
            return put(quantizedFrame(frame, std::move(indexed), std::move(error)));
        }
        return workers_.add([image = std::move(frame)]() {
            std::string error;
            std::optional<IndexedImage> indexed = quantizeForGif(image, error, kFrameQuantizeSpeed);
            return quantizedFrame(image, std::move(indexed), std::move(error));
        });
    }

    std::string finish() override {
        if (std::string error = workers_.finish(); !error.empty()) {
            abandon();
            return error;
        }
        int closeError = 0;
        const int closed = EGifCloseFile(gif_, &closeError);
        gif_ = nullptr;
        if (closed == GIF_ERROR) {
            abandon();
            return gifErrorText(closeError);
        }
        return file_->commit();
    }

    void abandon() override {
        workers_.abandon();
        if (gif_ != nullptr)
            EGifCloseFile(gif_, nullptr);
        gif_ = nullptr;
        file_->abandon();
    }

private:
    // Writes the next frame of the loop.
    std::string put(const QuantizedFrame& frame) {
        if (!frame.indexed)
            return frame.error;
        const IndexedImage& indexed = *frame.indexed;
        GraphicsControlBlock control{};
        control.DisposalMode = DISPOSE_BACKGROUND;
        control.DelayTime = frameLengthTicks(frame_++, settings_.fps, kCentiseconds);
        control.TransparentColor =
            indexed.transparentIndex ? *indexed.transparentIndex : NO_TRANSPARENT_COLOR;
        GifByteType extension[4];
        const std::size_t length = EGifGCBToExtension(&control, extension);
        ColorMapObject* map = makeGifColorMap(indexed.palette);
        if (map == nullptr)
            return "out of memory for the GIF palette";
        const bool described =
            EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(length), extension) !=
                GIF_ERROR &&
            EGifPutImageDesc(gif_, 0, 0, frame.width, frame.height, false, map) != GIF_ERROR;
        GifFreeMapObject(map);
        if (!described)
            return gifErrorText(gif_->Error);
        return putGifRows(gif_, indexed.indices, frame.width, frame.height);
    }

    std::unique_ptr<PendingFile> file_;
    AnimationSettings settings_;
    std::unique_ptr<LoopPalette> loopPalette_;
    GifFileType* gif_ = nullptr;
    int frame_ = 0;
    FrameWorkers<QuantizedFrame> workers_; // last: its threads finish before the rest goes
};

} // namespace

std::unique_ptr<AnimationWriter>
beginAnimatedGif(const std::string& path, const AnimationSettings& settings, std::string& error) {
    if (settings.width > kMaxGifSide || settings.height > kMaxGifSide) {
        error = "a GIF picture is at most 65535 pixels wide and high";
        return nullptr;
    }
    return startPendingWriter<AnimatedGif>(path, error, settings);
}

} // namespace orrery::imageio
