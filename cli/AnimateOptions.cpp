#include "cli/AnimateOptions.h"

#include "cli/RenderOptions.h"
#include "core/model/WholeNumber.h"

#include <algorithm>
#include <array>

namespace orrery::cli {
namespace {

constexpr std::array<std::string_view, 8> kValueOptions{
    "-o", "--frames", "--fps", "--scale", "--spin", "--quality", "--range", "--gif-palette"};

std::string refused(const std::string& rule, const std::string& value) {
    return rule + ", not \"" + value + "\"";
}

// Checks one option with a value; the range waits for the frame count, which may come later.
bool applyValue(const std::string& option, const std::string& value, AnimateOptions& options,
                std::string& rangeText, std::string& error) {
    AnimationOptions& animation = options.animation;
    if (option == "-o") {
        options.output = value;
    } else if (option == "--frames" || option == "--fps") {
        const std::optional<int> number = wholeNumber<int>(value);
        const bool frames = option == "--frames";
        const std::string problem =
            !number ? std::string("not a whole number")
                    : (frames ? frameCountProblem(*number) : fpsProblem(*number));
        if (!problem.empty()) {
            error = option + " \"" + value + "\": " + problem;
            return false;
        }
        (frames ? animation.frames : animation.fps) = *number;
    } else if (option == "--scale") {
        const std::optional<double> scale = parseScale(value);
        if (!scale) {
            error = refused(kScaleRule, value);
            return false;
        }
        animation.scale = *scale;
    } else if (option == "--spin") {
        const std::optional<SpinMode> spin = spinModeNamed(value);
        if (!spin) {
            error = refused("--spin is same or by-size", value);
            return false;
        }
        animation.spin = *spin;
    } else if (option == "--quality") {
        const std::optional<int> quality = parseQuality(value);
        if (!quality) {
            error = refused(kQualityRule, value);
            return false;
        }
        animation.quality = *quality;
    } else if (option == "--gif-palette") {
        if (value != "frame" && value != "loop") {
            error = refused("--gif-palette is frame or loop", value);
            return false;
        }
        animation.loopPalette = value == "loop";
    } else {
        rangeText = value;
    }
    return true;
}

// What the options say about the output once all are read.
bool settleOutput(AnimateOptions& options, const std::string& rangeText, std::string& error) {
    if (options.package.empty()) {
        error = "animate needs a package: orrery animate PACKAGE.kvx -o FILE";
        return false;
    }
    if (options.output.empty()) {
        error = "animate needs an output file: -o FILE";
        return false;
    }
    const std::optional<AnimationFormat> format = animationFormatForPath(options.output);
    if (!format) {
        error = options.output + ": the kind of animation comes from the extension: .gif .webp "
                                 ".webm .mp4, .png for a sprite sheet, or a folder ending in /";
        return false;
    }
    options.format = *format;
    if (rangeText.empty())
        return true;
    if (options.format != AnimationFormat::frames) {
        error = "--range draws a part of the loop into a folder of frames: -o FOLDER/";
        return false;
    }
    options.range = parseFrameRange(rangeText, options.animation.frames, error);
    return options.range.has_value();
}

} // namespace

std::optional<AnimateOptions> parseAnimateOptions(const std::vector<std::string>& arguments,
                                                  std::string& error) {
    AnimateOptions options;
    std::string rangeText;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (std::find(kValueOptions.begin(), kValueOptions.end(), argument) !=
            kValueOptions.end()) {
            if (i + 1 == arguments.size()) {
                error = argument + " needs a value";
                return std::nullopt;
            }
            if (!applyValue(argument, arguments[++i], options, rangeText, error))
                return std::nullopt;
        } else if (argument == "--include-background") {
            options.animation.includeBackground = true;
        } else if (argument == "--light-orbit") {
            options.animation.lightOrbit = true;
        } else if (argument.size() > 1 && argument.front() == '-') {
            error = "animate has no option " + argument;
            return std::nullopt;
        } else if (options.package.empty()) {
            options.package = argument;
        } else {
            error = "animate takes one package, not also \"" + argument + "\"";
            return std::nullopt;
        }
    }
    if (!settleOutput(options, rangeText, error))
        return std::nullopt;
    return options;
}

} // namespace orrery::cli
