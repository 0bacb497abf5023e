#pragma once

#include "imageio/AnimationWriter.h"

namespace orrery::imageio {

enum class VideoKind {
    webm, // VP9 (libvpx) with its alpha channel, yuva420p
    mp4   // H.264 (libx264), yuv420p: frames should come laid over a background
};

// A video through FFmpeg's libraries at the settings' frame rate, its quality from the
// compression factor (a constant-quality rate factor). H.264 needs even sides: an odd last
// column or row is left out. Written into a hidden temporary and renamed on finish.
std::unique_ptr<AnimationWriter> beginVideo(VideoKind kind, const std::string& path,
                                            const AnimationSettings& settings, std::string& error);

} // namespace orrery::imageio
