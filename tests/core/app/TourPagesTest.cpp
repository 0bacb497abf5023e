#include "core/app/TourPages.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

// Walks the whole tour forward and back, as the two buttons would, and keeps their states.
struct TourButtonsState {
    int page = 1;
    bool back = false;
    bool forward = true;

    bool turn(const std::optional<TourTurn>& t) {
        if (!t)
            return false;
        page = t->page;
        switch (t->buttons) {
        case TourButtons::unchanged:
            break;
        case TourButtons::bothOn:
            back = forward = true;
            break;
        case TourButtons::backOffForwardOn:
            back = false, forward = true;
            break;
        case TourButtons::forwardOffBackOn:
            back = true, forward = false;
            break;
        }
        return true;
    }
};

TEST(TourPages, ForwardToTheEndAndBackToTheStart) {
    TourButtonsState tour;
    for (int press = 0; press < 11; ++press)
        EXPECT_TRUE(tour.turn(tourForward(tour.page)));
    EXPECT_EQ(tour.page, 12);
    EXPECT_TRUE(tour.back);
    EXPECT_FALSE(tour.forward);
    EXPECT_FALSE(tour.turn(tourForward(tour.page)));
    EXPECT_EQ(tour.page, 12);

    // Back from the last page turns the forward button on again at once.
    EXPECT_TRUE(tour.turn(tourBack(tour.page)));
    EXPECT_TRUE(tour.forward);
    while (tour.turn(tourBack(tour.page))) {
    }
    EXPECT_EQ(tour.page, 1);
    EXPECT_FALSE(tour.back);
    EXPECT_TRUE(tour.forward);
}

TEST(TourPages, TheDirectionsAreNotMirrorImages) {
    // Forward from page 3 leaves the buttons alone; back to page 8 switches both on.
    EXPECT_EQ(tourForward(3)->buttons, TourButtons::unchanged);
    EXPECT_EQ(tourBack(9)->buttons, TourButtons::bothOn);
    EXPECT_EQ(tourBack(8)->buttons, TourButtons::unchanged);
}

TEST(TourPages, BadgesAndPictures) {
    for (int page = 1; page <= kTourPageCount; ++page)
        EXPECT_EQ(tourPage(page).redBadge, page == 1 || page == 12) << page;
    EXPECT_STREQ(tourPage(12).picture, "12_help");
    EXPECT_STREQ(tourPage(0).textKey, "introductionDescript1");
}

} // namespace
} // namespace orrery
