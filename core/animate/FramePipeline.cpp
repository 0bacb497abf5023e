#include "core/animate/FramePipeline.h"

#include <future>

namespace orrery {

PipelineOutcome runFramePipeline(FrameRange range, const FrameDrawer& draw,
                                 const FrameConsumer& consume, const FrameProgress& progress) {
    PipelineOutcome outcome;
    std::future<std::string> handing;
    // Waits for the frame being handed on; false when it failed.
    const auto settle = [&]() {
        if (!handing.valid())
            return true;
        outcome.error = handing.get();
        return outcome.error.empty();
    };
    for (int frame = range.first; frame <= range.last; ++frame) {
        std::string error;
        std::optional<Image> picture = draw(frame, error);
        if (!settle())
            return outcome;
        if (!picture) {
            outcome.error = error;
            return outcome;
        }
        if (frame > range.first && progress && !progress(frame - range.first, range.count())) {
            outcome.stopped = true;
            return outcome;
        }
        handing = std::async(std::launch::async, [&consume, image = std::move(*picture)]() mutable {
            return consume(std::move(image));
        });
    }
    if (settle() && progress && !progress(range.count(), range.count()))
        outcome.stopped = true;
    return outcome;
}

} // namespace orrery
