#include "core/app/TourPages.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

// The whole walk, with the buttons' states, is checked in the window; here the two
// directions' asymmetry and the ends.
TEST(TourPages, TheDirectionsAreNotMirrorImages) {
    // Forward from page 3 leaves the buttons alone; back to page 8 switches both on.
    EXPECT_EQ(tourForward(3)->buttons, TourButtons::unchanged);
    EXPECT_EQ(tourBack(9)->buttons, TourButtons::bothOn);
    EXPECT_EQ(tourBack(8)->buttons, TourButtons::unchanged);
    EXPECT_EQ(tourForward(11)->buttons, TourButtons::forwardOffBackOn);
    EXPECT_EQ(tourBack(2)->buttons, TourButtons::backOffForwardOn);
    EXPECT_FALSE(tourForward(12));
    EXPECT_FALSE(tourBack(1));
}

TEST(TourPages, BadgesAndPictures) {
    for (int page = 1; page <= kTourPageCount; ++page)
        EXPECT_EQ(tourPage(page).redBadge, page == 1 || page == 12) << page;
    EXPECT_STREQ(tourPage(12).picture, "12_help");
    EXPECT_STREQ(tourPage(0).textKey, "introductionDescript1");
}

} // namespace
} // namespace orrery
