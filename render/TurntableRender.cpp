#include "render/TurntableRender.h"

#include "core/animate/Turntable.h"
#include "render/HeadlessContext.h"
#include "render/Renderer.h"

namespace orrery {

PipelineOutcome renderTurntable(SceneView& view, const AnimationOptions& options, int width,
                                int height, FrameRange range, const SurfaceSource& surfaces,
                                const FrameConsumer& consume, const FrameProgress& progress) {
    PipelineOutcome failed;
    const auto context = HeadlessContext::create(&failed.error);
    if (!context)
        return failed;
    // The renderer's GL objects go before the context does.
    const auto renderer = Renderer::create(surfaces, &failed.error);
    if (!renderer)
        return failed;
    Turntable turntable(view, options);
    const FrameDrawer draw = [&](int frame, std::string& error) {
        turntable.showFrame(frame);
        return renderer->renderImage(view, width, height, &error);
    };
    PipelineOutcome outcome = runFramePipeline(range, draw, consume, progress);
    turntable.restore();
    return outcome;
}

} // namespace orrery
