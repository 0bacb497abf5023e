#include "core/animate/AnimationOptions.h"

namespace orrery {

std::string frameCountProblem(int frames) {
    if (frames >= kFewestFrames && frames <= kMostFrames)
        return {};
    return "a loop has " + std::to_string(kFewestFrames) + " to " + std::to_string(kMostFrames) +
           " frames, not " + std::to_string(frames);
}

std::string fpsProblem(int fps) {
    if (fps >= kLowestFps && fps <= kHighestFps)
        return {};
    return "the frame rate is " + std::to_string(kLowestFps) + " to " +
           std::to_string(kHighestFps) + " frames per second, not " + std::to_string(fps);
}

std::optional<SpinMode> spinModeNamed(std::string_view name) {
    if (name == "same")
        return SpinMode::same;
    if (name == "by-size")
        return SpinMode::bySize;
    return std::nullopt;
}

} // namespace orrery
