#pragma once

#include <optional>
#include <string_view>

namespace orrery {

// The kinds of file a turntable animation is written as.
enum class AnimationFormat { gif, webp, webm, mp4, spriteSheet, frames };

struct AnimationFormatInfo {
    AnimationFormat format;
    std::string_view extension; // what the save panel adds; empty for a folder of frames
    bool keepsAlpha;            // MP4 has no alpha channel: it is laid over the background
    bool usesQuality;           // the compression slider means something
};

const AnimationFormatInfo& animationFormatInfo(AnimationFormat format);

// The format a path asks for: a folder (a path ending in '/') for frames, else by its
// extension, case-insensitively: .gif .webp .webm .mp4, .png for a sprite sheet.
std::optional<AnimationFormat> animationFormatForPath(std::string_view path);

} // namespace orrery
