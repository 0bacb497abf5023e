#include "core/export/ExportChoices.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(ExportChoices, CompressionFactorIsTheSliderOverAHundred) {
    EXPECT_FLOAT_EQ(compressionFactor(85), 0.85f);
    EXPECT_FLOAT_EQ(compressionFactor(140), 1.0f);
}

TEST(ExportChoices, ExportNeedsOneVisiblePlanet) {
    PlanetList planets;
    EXPECT_FALSE(canExport(planets));
    PlanetRecord hidden = newPlanetRecord("1", "Hidden");
    hidden.state = "0";
    planets.append(hidden);
    planets.append(hidden);
    EXPECT_FALSE(canExport(planets));
    planets.append(newPlanetRecord("2", "Shown"));
    EXPECT_TRUE(canExport(planets));
    planets.remove(2);
    EXPECT_FALSE(canExport(planets));
}

TEST(ExportChoices, IncludeBackgroundOnlyWithAColour) {
    EXPECT_FALSE(includeBackgroundChoice(0, "1").enabled);
    EXPECT_FALSE(includeBackgroundChoice(0, "1").on);
    EXPECT_TRUE(includeBackgroundChoice(3, "1").on);
    EXPECT_TRUE(includeBackgroundChoice(1, "0").enabled);
    EXPECT_FALSE(includeBackgroundChoice(1, "0").on);
}

} // namespace
} // namespace orrery
