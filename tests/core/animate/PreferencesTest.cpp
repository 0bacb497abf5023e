#include "core/animate/AnimationPreferences.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(AnimationPreferences, FreshRowsGiveTheDefaultsAndChoicesComeBack) {
    const std::vector<std::string> fresh(99, "0");
    EXPECT_EQ(storedAnimationChoices(fresh), AnimationChoices{});
    EXPECT_EQ(storedAnimationChoices({}), AnimationChoices{}); // a short, damaged list

    AnimationChoices chosen;
    chosen.format = AnimationFormat::frames;
    chosen.options = {720, 60, SpinMode::bySize, true, 0.5, true, 0, true};
    std::vector<std::string> list = fresh;
    for (const PreferenceRow& row : animationPreferenceRows(chosen)) {
        // The field names the list position, and only spare rows are touched.
        EXPECT_EQ(row.field, "Value" + std::string(row.position < 9 ? "0" : "") +
                                 std::to_string(row.position + 1));
        EXPECT_GE(row.position, 4u);
        list[row.position] = row.value;
    }
    EXPECT_EQ(storedAnimationChoices(list), chosen);
}

TEST(AnimationPreferences, UnusableValuesReadAsDefaults) {
    std::vector<std::string> list(99, "0");
    list[4] = "7";    // no seventh format
    list[5] = "1";    // one frame is no loop
    list[6] = "61";   // too fast
    list[10] = "102"; // quality above 100
    list[11] = "9";   // scale above 8
    EXPECT_EQ(storedAnimationChoices(list), AnimationChoices{});
}

} // namespace
} // namespace orrery
