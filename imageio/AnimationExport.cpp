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
    const FrameConsumer consume = [&](Image frame) {
        return writer->addFrame(exportAnimationFrame(std::move(frame), job.background,
                                                     job.includeBackground, keepsAlpha));
    };
    const PipelineOutcome outcome = frames(consume);
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
