#include "core/export/ExportChoices.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(ExportChoices, StoredFormatIsReadAsRowPlusOne) {
    EXPECT_EQ(defaultExportFormat(""), ExportFormat::png);
    EXPECT_EQ(defaultExportFormat("0"), ExportFormat::png);
    EXPECT_EQ(defaultExportFormat("1"), ExportFormat::bmp);
    EXPECT_EQ(defaultExportFormat("2"), ExportFormat::gif); // JPEG in Preferences
    EXPECT_EQ(defaultExportFormat("3"), ExportFormat::jpeg);
    EXPECT_EQ(defaultExportFormat("6"), ExportFormat::tiff);
}

TEST(ExportChoices, StoredFormatNamingNoRowStartsOnPng) {
    EXPECT_EQ(defaultExportFormat("7"), ExportFormat::png);
    EXPECT_EQ(defaultExportFormat("-3"), ExportFormat::png);
    EXPECT_EQ(defaultExportFormat("PNG"), ExportFormat::png);
    EXPECT_EQ(defaultExportFormat("99999999999999999999"), ExportFormat::png);
}

TEST(ExportChoices, CompressionDefaults) {
    EXPECT_EQ(defaultCompression(""), 85);
    EXPECT_EQ(defaultCompression("0"), 85);
    EXPECT_EQ(defaultCompression("40"), 40);
    EXPECT_EQ(defaultCompression("100"), 100);
    EXPECT_EQ(defaultCompression("250"), 100);
    EXPECT_EQ(defaultCompression("-20"), 0);
    // "0" shows 85 and writes a JPEG with the factor 0.85.
    EXPECT_FLOAT_EQ(compressionFactor(defaultCompression("0")), 0.85f);
    EXPECT_FLOAT_EQ(compressionFactor(0), 0.0f);
    EXPECT_FLOAT_EQ(compressionFactor(100), 1.0f);
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
