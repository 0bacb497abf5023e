#pragma once

#include "core/animate/AnimationFormat.h"
#include "core/animate/AnimationOptions.h"
#include "core/animate/FrameFiles.h"

#include <optional>
#include <string>
#include <vector>

namespace orrery::cli {

// What `orrery animate PACKAGE.kvx -o FILE [--frames N] [--fps F] [--scale S]
// [--include-background] [--light-orbit] [--spin same|by-size] [--quality N]
// [--gif-palette frame|loop] [--range FIRST-LAST]` asks for; options may come in any order around
// the package.
struct AnimateOptions {
    std::string package;
    std::string output;
    AnimationFormat format = AnimationFormat::gif; // from the output's extension, or a folder
    AnimationOptions animation;
    std::optional<FrameRange> range; // frame folders only; none for the whole loop
};

// The arguments after the verb. Every number is checked; gives none with a one-line reason.
std::optional<AnimateOptions> parseAnimateOptions(const std::vector<std::string>& arguments,
                                                  std::string& error);

} // namespace orrery::cli
