#pragma once

#include "core/animate/AnimationFormat.h"
#include "core/animate/AnimationOptions.h"

#include <string>
#include <utility>
#include <vector>

// The animation sheet remembers its choices in spare rows of table Preferences, "Value05" to
// "Value13", which are created with "0" like every row: "0" (or anything unusable) reads as
// the choice's default. The format is stored as its number from 1, the quality as its value
// plus 1, so that a quality of 0 stays distinct from "not chosen".
namespace orrery {

struct AnimationChoices {
    AnimationFormat format = AnimationFormat::gif;
    AnimationOptions options;
    friend bool operator==(const AnimationChoices&, const AnimationChoices&) = default;
};

// The choices as stored in the Preferences list (read by position).
AnimationChoices storedAnimationChoices(const std::vector<std::string>& preferences);

// The rows to write, as field and value, and the list position each one has.
struct PreferenceRow {
    std::string field;
    std::string value;
    std::size_t position;
};
std::vector<PreferenceRow> animationPreferenceRows(const AnimationChoices& choices);

} // namespace orrery
