#pragma once

#include "core/animate/FrameFiles.h"
#include "core/styles/Image.h"

#include <functional>
#include <optional>
#include <string>

namespace orrery {

// Draws a frame; none, with the reason in `error`, when it cannot be drawn.
using FrameDrawer = std::function<std::optional<Image>(int frame, std::string& error)>;
// Hands a drawn frame on (to an encoder); an empty text, or why it failed.
using FrameConsumer = std::function<std::string(Image frame)>;
// Told after each frame is handed on how many of how many are done; false stops the run.
using FrameProgress = std::function<bool(int done, int total)>;

struct PipelineOutcome {
    std::string error; // the first failure; empty when every frame was handed on
    bool stopped = false;
    bool ok() const { return error.empty() && !stopped; }
};

// Draws the frames of `range` in order on the calling thread (where the drawing context is)
// and hands each to `consume` on a second thread while the next one is drawn, so that the
// two overlap. The pipeline holds at most two frames at any time, however many the range
// holds (a writer that encodes on several threads keeps a few more on their way, see
// FrameWorkers).
PipelineOutcome runFramePipeline(FrameRange range, const FrameDrawer& draw,
                                 const FrameConsumer& consume, const FrameProgress& progress);

} // namespace orrery
