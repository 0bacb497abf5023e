#pragma once

#include "core/animate/FramePipeline.h"
#include "imageio/AnimationWriter.h"

#include <functional>
#include <string>

namespace orrery::imageio {

// Where and how a turntable is written, and what is laid under its frames.
struct AnimationJob {
    AnimationFormat format = AnimationFormat::gif;
    std::string path;
    AnimationSettings settings;
    long background = 0;            // the current background, 0 for none
    bool includeBackground = false; // as the still export's check box
};

// Produces the frames, handing each to `consume` (renderTurntable does, for the scene).
using FrameSource = std::function<PipelineOutcome(const FrameConsumer& consume)>;

struct AnimationResult {
    std::string error; // empty when the file is whole at its path
    bool stopped = false;
};

// Writes the frames the source gives as the job's format: each laid over the background
// when asked (and over black for a format without alpha), streamed into the writer while
// the next one is drawn. A failure or a stop leaves nothing behind.
AnimationResult exportAnimation(const AnimationJob& job, const FrameSource& frames);

} // namespace orrery::imageio
