#include "core/styles/GradientLibrary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace orrery {
namespace {

TEST(GradientCatalogue, RowsAreCompleteOpaqueAndEndAtOne) {
    std::size_t total = 0;
    for (std::int64_t n = 0; n < gradientLibrary::kCatalogueSize; ++n) {
        const auto stops = gradientLibrary::stopsOf(n);
        EXPECT_GE(stops.size(), 3u) << "row " << n;
        EXPECT_LE(stops.size(), 12u) << "row " << n;
        double highest = 0.0;
        for (const GradientStopText& stop : stops) {
            EXPECT_EQ(stop.alpha, "100") << "row " << n;
            const double position = std::strtod(stop.position.c_str(), nullptr);
            EXPECT_GE(position, 0.0) << "row " << n;
            highest = std::max(highest, position);
        }
        EXPECT_EQ(highest, 1.0) << "row " << n;
        total += stops.size();
    }
    EXPECT_EQ(total, 438u); // a dropped or doubled stop anywhere changes the sum
}

TEST(GradientCatalogue, NumbersOutsideTheTableHaveNoStops) {
    for (std::int64_t n :
         {std::int64_t{85}, std::int64_t{139}, std::int64_t{-1}, INT64_MIN, INT64_MAX}) {
        EXPECT_TRUE(gradientLibrary::stopsOf(n).empty()) << n;
        EXPECT_FALSE(gradientLibrary().getGradient(n).has_value()) << n;
    }
}

TEST(GradientCatalogue, StopsKeepTheirTextsAndListOrder) {
    const auto row0 = gradientLibrary::stopsOf(0);
    EXPECT_EQ(row0.front().position, "0.000000");
    EXPECT_EQ(row0.front().red, "158");
    EXPECT_EQ(row0.front().green, "86");
    EXPECT_EQ(row0.front().blue, "34");
    EXPECT_EQ(row0.front().alpha, "100");
    EXPECT_EQ(row0.back().position, "1.000000");

    EXPECT_EQ(gradientLibrary::stopsOf(1).front().position, "0.0f");
    EXPECT_EQ(gradientLibrary::stopsOf(5).front().position, "0");

    // Row 9 lists 0.9 before 0.317652; the catalogue does not sort.
    const auto row9 = gradientLibrary::stopsOf(9);
    const char* expected[] = {"0.000000", "0.1",      "0.9",     "0.317652",
                              "0.500000", "0.713574", "1.000000"};
    ASSERT_EQ(row9.size(), std::size(expected));
    for (std::size_t i = 0; i < row9.size(); ++i)
        EXPECT_EQ(row9[i].position, expected[i]);

    const auto row84 = gradientLibrary::stopsOf(84);
    EXPECT_EQ(row84.back().position, "1.000000");
    EXPECT_EQ(row84.back().red, "232");
    EXPECT_EQ(row84.back().green, "240");
    EXPECT_EQ(row84.back().blue, "190");
}

TEST(GetGradient, ReadsPositionsAsLeadingNumbersInSinglePrecision) {
    const gradientLibrary library;
    EXPECT_EQ(library.getGradient(1)->stops.front().location, 0.0);
    EXPECT_EQ(library.getGradient(5)->stops.front().location, 0.0);

    const auto row83 = library.getGradient(83);
    ASSERT_TRUE(row83);
    EXPECT_EQ(row83->stops[3].location, static_cast<double>(0.1815645f));
    EXPECT_EQ(row83->stops[4].location, static_cast<double>(0.3808985f));
    EXPECT_NE(row83->stops[3].location, 0.181564); // all seven decimals count

    const GradientColorStop first = library.getGradient(0)->stops.front();
    EXPECT_EQ(first.red, static_cast<double>(158.0f / 255.0f));
    EXPECT_EQ(first.alpha, 1.0);
}

TEST(GetGradient, PositionsMatchADoubleReadingRoundedToFloat) {
    // Locations are the double value of the text passed through a float; reading the
    // text straight into a float must agree for every position in the catalogue.
    const gradientLibrary library;
    for (std::int64_t n = 0; n < gradientLibrary::kCatalogueSize; ++n) {
        const auto texts = gradientLibrary::stopsOf(n);
        const auto gradient = library.getGradient(n);
        ASSERT_TRUE(gradient);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const double viaDouble =
                static_cast<float>(std::strtod(texts[i].position.c_str(), nullptr));
            EXPECT_EQ(gradient->stops[i].location, viaDouble) << "row " << n << " stop " << i;
        }
    }
}

TEST(GradientFromStops, BuildsFromRecordsAndRefusesAnEmptyList) {
    EXPECT_FALSE(gradientFromStops({}).has_value());
    const auto gradient =
        gradientFromStops({{"255", "0", "51", "50", "0.25"}, {"0", "0", "0", "100", "x"}});
    ASSERT_TRUE(gradient);
    EXPECT_EQ(gradient->stops[0].red, 1.0);
    EXPECT_EQ(gradient->stops[0].blue, static_cast<double>(51.0f / 255.0f));
    EXPECT_EQ(gradient->stops[0].alpha, static_cast<double>(0.5f));
    EXPECT_EQ(gradient->stops[0].location, 0.25);
    EXPECT_EQ(gradient->stops[1].location, 0.0); // text without a number reads as 0
}

} // namespace
} // namespace orrery
