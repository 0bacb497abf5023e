#include "core/app/DocumentArea.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(DocumentSide, LimitsAreInclusiveAndOnlyWholeNumbersPass) {
    using enum SideCheck;
    EXPECT_EQ(checkDocumentSide("609", DocumentAxis::width), outOfRange);
    EXPECT_EQ(checkDocumentSide("610", DocumentAxis::width), valid);
    EXPECT_EQ(checkDocumentSide("2518", DocumentAxis::width), valid);
    EXPECT_EQ(checkDocumentSide("2519", DocumentAxis::width), outOfRange);
    EXPECT_EQ(checkDocumentSide("419", DocumentAxis::height), outOfRange);
    EXPECT_EQ(checkDocumentSide("420", DocumentAxis::height), valid);
    EXPECT_EQ(checkDocumentSide("1150", DocumentAxis::height), valid);
    EXPECT_EQ(checkDocumentSide("1151", DocumentAxis::height), outOfRange);
    // A width that is fine is still too tall for a height.
    EXPECT_EQ(checkDocumentSide("2000", DocumentAxis::height), outOfRange);
    for (const char* text : {"12a", "", "640.0", "6 40", "1e3", "-"})
        EXPECT_EQ(checkDocumentSide(text, DocumentAxis::height), notWhole) << text;
    EXPECT_EQ(checkDocumentSide("99999999999999999999999", DocumentAxis::width), outOfRange);
}

TEST(DocumentSide, WindowIsFortyWiderAndTwoHundredSixtyTwoTallerThanTheFramedArea) {
    EXPECT_EQ(windowSizeForDocument({610, 420}), (PixelSize{652, 684}));
    EXPECT_EQ(documentSizeForWindow({652, 684}), (PixelSize{610, 420}));
    EXPECT_EQ(minimumWindowSize(), (PixelSize{652, 684}));
    EXPECT_EQ(maximumWindowSize(), (PixelSize{2560, 1414}));
}

// Sizes a package may carry but a window may not hold: shown whole, never stretched.
TEST(DocumentFit, SmallDocumentsSitCentredAtTheirSizeLargeOnesScaleDownWhole) {
    EXPECT_EQ(fitDocument({610, 420}, {610, 420}), (DocumentFit{0, 0, {610, 420}, 100}));
    EXPECT_EQ(fitDocument({401, 301}, {610, 420}), (DocumentFit{104, 59, {401, 301}, 100}));
    EXPECT_EQ(fitDocument({6400, 6400}, {2518, 1150}), (DocumentFit{684, 0, {1150, 1150}, 17}));
    EXPECT_EQ(fitDocument({2518, 1150}, {1259, 1150}), (DocumentFit{0, 287, {1259, 575}, 50}));
}

} // namespace
} // namespace orrery
