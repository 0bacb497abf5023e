#pragma once

#include "core/animate/AnimationFormat.h"
#include "core/styles/Image.h"

#include <memory>
#include <string>

namespace orrery::imageio {

// What every animation writer needs to know before the first frame.
struct AnimationSettings {
    int width = 0; // every frame has this size
    int height = 0;
    int fps = 24;
    int frames = 48;           // in the whole loop
    int firstFrame = 0;        // the loop's number of the first frame handed in (frame folders)
    float compression = 0.85f; // 0 to 1: the quality of lossy WebP and of video; 1 is lossless WebP
    bool loopPalette = false;  // GIF: one palette for the whole loop, not one a frame
};

// A turntable written as a stream: begun by beginAnimation, then one frame after another,
// then finished. Nothing appears at the path before finish() succeeds; a writer abandoned
// (or destroyed unfinished) removes everything it wrote. Each call gives an empty text, or
// the reason it failed (a short phrase that follows the path).
class AnimationWriter {
public:
    virtual ~AnimationWriter() = default;
    // The frame is the writer's: one that encodes frames on other threads keeps it meanwhile.
    virtual std::string addFrame(Image frame) = 0;
    // A writer that must see every frame before it writes the first (a GIF with one palette
    // for the loop) says so; it is handed each frame to sample, then each again to add.
    virtual bool samplesFirst() const { return false; }
    virtual std::string sample(const Image&) { return {}; }
    virtual std::string finish() = 0;
    virtual void abandon() = 0;
};

// A writer of the format at path (a folder for frames); none, with the reason in `error`,
// when the output cannot even be started.
std::unique_ptr<AnimationWriter> beginAnimation(AnimationFormat format, const std::string& path,
                                                const AnimationSettings& settings,
                                                std::string& error);

} // namespace orrery::imageio
