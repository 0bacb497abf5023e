#include "core/export/ExportChoices.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(ExportChoices, CompressionFactorIsTheSliderOverAHundred) {
    EXPECT_FLOAT_EQ(compressionFactor(85), 0.85f);
    EXPECT_FLOAT_EQ(compressionFactor(140), 1.0f);
}

// The box starts on only for exactly "1" in the switch's own row (General "Value04").
TEST(ExportChoices, IncludeBackgroundOnlyWithAColour) {
    struct Case {
        long background;
        std::size_t position;
        const char* value;
        IncludeBackgroundChoice expected;
    };
    const Case cases[] = {
        {0, 3, "1", {false, false}}, {3, 3, "1", {true, true}},  {1, 3, "0", {true, false}},
        {1, 3, "2", {true, false}},  {1, 2, "1", {true, false}}, {1, 4, "1", {true, false}},
    };
    for (const Case& c : cases) {
        std::vector<std::string> general(12, "0");
        general[c.position] = c.value;
        const IncludeBackgroundChoice choice = includeBackgroundChoice(c.background, general);
        EXPECT_EQ(choice.enabled, c.expected.enabled) << c.background << " " << c.position;
        EXPECT_EQ(choice.on, c.expected.on) << c.background << " " << c.position << c.value;
    }
    EXPECT_FALSE(includeBackgroundChoice(1, {"1", "1", "1"}).on); // a short list
}

} // namespace
} // namespace orrery
