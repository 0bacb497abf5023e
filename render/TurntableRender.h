#pragma once

#include "core/animate/AnimationOptions.h"
#include "core/animate/FramePipeline.h"
#include "core/scene/SceneView.h"
#include "render/SurfaceSource.h"

namespace orrery {

// Draws the frames of `range` of the view's turntable loop at width x height without any
// display, handing each to `consume` while the next one is drawn (see runFramePipeline). The
// view is turned frame by frame and put back as it was at the end.
PipelineOutcome renderTurntable(SceneView& view, const AnimationOptions& options, int width,
                                int height, FrameRange range, const SurfaceSource& surfaces,
                                const FrameConsumer& consume, const FrameProgress& progress);

} // namespace orrery
