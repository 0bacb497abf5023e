#pragma once

#include <optional>
#include <string>
#include <string_view>

// What a turntable animation is asked to be, and the limits of each choice.
namespace orrery {

inline constexpr int kFewestFrames = 2;
inline constexpr int kMostFrames = 720;
inline constexpr int kDefaultFrames = 48;
inline constexpr int kLowestFps = 1;
inline constexpr int kHighestFps = 60;
inline constexpr int kDefaultFps = 24;

// How many turns each planet makes in one loop: all one turn, or the larger ones slower.
enum class SpinMode { same, bySize };

struct AnimationOptions {
    int frames = kDefaultFrames; // frames in one loop
    int fps = kDefaultFps;
    SpinMode spin = SpinMode::same;
    bool lightOrbit = false; // the light circles the scene once per loop
    double scale = 1.0;
    bool includeBackground = false;
    int quality = 85; // 0 to 100: lossy WebP and video; 100 makes WebP lossless
    // GIF: one palette for the whole loop (steady colours; every frame is drawn twice, once
    // to count its colours) rather than one for each frame.
    bool loopPalette = false;
    friend bool operator==(const AnimationOptions&, const AnimationOptions&) = default;
};

// Each gives an empty text for a value within its limits, else why it is refused.
std::string frameCountProblem(int frames);
std::string fpsProblem(int fps);

// "same" or "by-size", as the command line names them; none for anything else.
std::optional<SpinMode> spinModeNamed(std::string_view name);

} // namespace orrery
