#include "core/animate/AnimationPreferences.h"

#include "core/model/WholeNumber.h"

#include <cmath>
#include <cstdio>

namespace orrery {
namespace {

constexpr std::size_t kFirstRow = 4; // "Value05"
enum Row : std::size_t {
    format,
    frames,
    fps,
    spin,
    orbit,
    background,
    quality,
    scale,
    palette,
    count
};
constexpr int kFormatCount = 6;

std::string valueAt(const std::vector<std::string>& preferences, Row row) {
    const std::size_t at = kFirstRow + row;
    return at < preferences.size() ? preferences[at] : std::string();
}

// A whole number within [low, high], else none.
std::optional<int> numberWithin(const std::string& text, int low, int high) {
    const std::optional<int> number = wholeNumber<int>(text);
    if (!number || *number < low || *number > high)
        return std::nullopt;
    return number;
}

std::string scaleText(double scale) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", scale);
    return text;
}

} // namespace

AnimationChoices storedAnimationChoices(const std::vector<std::string>& preferences) {
    AnimationChoices choices;
    AnimationOptions& o = choices.options;
    if (const auto number = numberWithin(valueAt(preferences, format), 1, kFormatCount))
        choices.format = static_cast<AnimationFormat>(*number - 1);
    o.frames = numberWithin(valueAt(preferences, frames), kFewestFrames, kMostFrames)
                   .value_or(kDefaultFrames);
    o.fps = numberWithin(valueAt(preferences, fps), kLowestFps, kHighestFps).value_or(kDefaultFps);
    o.spin = valueAt(preferences, spin) == "1" ? SpinMode::bySize : SpinMode::same;
    o.lightOrbit = valueAt(preferences, orbit) == "1";
    o.includeBackground = valueAt(preferences, background) == "1";
    o.loopPalette = valueAt(preferences, palette) == "1";
    if (const auto stored = numberWithin(valueAt(preferences, quality), 1, 101))
        o.quality = *stored - 1;
    const std::optional<double> storedScale = wholeNumber<double>(valueAt(preferences, scale));
    if (storedScale && std::isfinite(*storedScale) && *storedScale > 0.0 && *storedScale <= 8.0)
        o.scale = *storedScale;
    return choices;
}

std::vector<PreferenceRow> animationPreferenceRows(const AnimationChoices& choices) {
    const AnimationOptions& o = choices.options;
    const std::string values[count] = {
        std::to_string(static_cast<int>(choices.format) + 1),
        std::to_string(o.frames),
        std::to_string(o.fps),
        o.spin == SpinMode::bySize ? "1" : "0",
        o.lightOrbit ? "1" : "0",
        o.includeBackground ? "1" : "0",
        std::to_string(o.quality + 1),
        scaleText(o.scale),
        o.loopPalette ? "1" : "0",
    };
    std::vector<PreferenceRow> rows;
    for (std::size_t row = 0; row < count; ++row) {
        char field[16];
        std::snprintf(field, sizeof field, "Value%02zu", kFirstRow + row + 1);
        rows.push_back({field, values[row], kFirstRow + row});
    }
    return rows;
}

} // namespace orrery
