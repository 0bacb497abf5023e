#include "core/app/ScreenFit.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

const ScreenRect kLeftScreen{0, 0, 1920, 1080};
const ScreenRect kRightScreen{1920, 0, 1280, 1024};

TEST(ScreenFit, CentresOnTheScreensAvailableArea) {
    EXPECT_EQ(centredOn({0, 32, 1920, 1048}, {1002, 804}), (ScreenRect{459, 154, 1002, 804}));
    EXPECT_EQ(centredOn(kRightScreen, {1002, 804}), (ScreenRect{2059, 110, 1002, 804}));
}

TEST(ScreenFit, AStoredFrameStaysWhereItsTitleBarCanBeGrasped) {
    const std::vector<ScreenRect> screens{kLeftScreen, kRightScreen};
    const ScreenRect onSecond{2000, 100, 1002, 804};
    EXPECT_EQ(bringOntoScreens(onSecond, screens), onSecond);
    // Hanging off the right edge of the desktop, with 150 pixels of title bar left.
    const ScreenRect mostlyOff{3050, 500, 1002, 804};
    EXPECT_EQ(bringOntoScreens(mostlyOff, screens), mostlyOff);
}

TEST(ScreenFit, AFrameOffEveryScreenComesBackOntoThePrimaryOne) {
    const std::vector<ScreenRect> screens{kLeftScreen, kRightScreen};
    // The second monitor of last time is gone.
    EXPECT_EQ(bringOntoScreens({4000, 200, 1002, 804}, {kLeftScreen}),
              (ScreenRect{459, 138, 1002, 804}));
    // Title bar above the top of the desktop, though the body shows.
    EXPECT_EQ(bringOntoScreens({100, -40, 1002, 804}, screens), (ScreenRect{459, 138, 1002, 804}));
    // Only a sliver of the title bar on screen cannot be grabbed.
    EXPECT_EQ(bringOntoScreens({3190, 100, 1002, 804}, screens).left, 459);
    // A frame larger than the primary screen is shrunk to it.
    EXPECT_EQ(bringOntoScreens({-5000, 0, 2560, 1414}, screens), kLeftScreen);
}

TEST(ScreenFit, ASecondaryWindowOpensWhereItWasOrFirstInsideTheMainWindow) {
    const std::vector<ScreenRect> screens{kLeftScreen, kRightScreen};
    const ScreenRect main{459, 138, 1002, 804};
    // Never placed: at its own size, 40 inside the main window's right edge, below its title.
    EXPECT_EQ(secondaryWindowFrame({}, {322, 385}, main, screens),
              (ScreenRect{1099, 218, 322, 385}));
    const ScreenRect last{2100, 300, 360, 445};
    EXPECT_EQ(secondaryWindowFrame(last, {322, 385}, main, screens), last);
    // Last time on a screen that is gone now.
    EXPECT_EQ(secondaryWindowFrame(last, {322, 385}, main, {kLeftScreen}),
              (ScreenRect{780, 317, 360, 445}));
}

TEST(ScreenFit, FirstStartShowsTheLargestDocumentUpTo960By540ThatFits) {
    EXPECT_EQ(firstDocumentSize({0, 0, 1920, 1080}), (PixelSize{960, 540}));
    EXPECT_EQ(firstDocumentSize({0, 0, 1002, 804}), (PixelSize{960, 540}));
    EXPECT_EQ(firstDocumentSize({0, 0, 1000, 768}), (PixelSize{958, 504}));
    // Never below the limits, even when the window cannot fit.
    EXPECT_EQ(firstDocumentSize({0, 0, 640, 480}), (PixelSize{610, 420}));
}

} // namespace
} // namespace orrery
