#include "imageio/AnimationExport.h"

#include "core/export/ExportPicture.h"

namespace orrery::imageio {

AnimationResult exportAnimation(const AnimationJob& job, const FrameSource& frames) {
    AnimationResult result;
    std::unique_ptr<AnimationWriter> writer =
        beginAnimation(job.format, job.path, job.settings, result.error);
    if (!writer)
        return result;
    const bool keepsAlpha = animationFormatInfo(job.format).keepsAlpha;
    const auto finished = [&](Image frame) {
        return exportAnimationFrame(std::move(frame), job.background, job.includeBackground,
                                    keepsAlpha);
    };
    PipelineOutcome outcome;
    // Frames are the same picture every time they are drawn: a writer that samples them first
    // sees exactly the frames it then writes.
    if (writer->samplesFirst())
        outcome = frames([&](Image frame) { return writer->sample(finished(std::move(frame))); });
    if (outcome.ok())
        outcome = frames([&](Image frame) { return writer->addFrame(finished(std::move(frame))); });
    if (!outcome.ok()) {
        writer->abandon();
        result.error = outcome.error;
        result.stopped = outcome.stopped;
        return result;
    }
    result.error = writer->finish();
    return result;
}

} // namespace orrery::imageio
