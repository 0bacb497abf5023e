#pragma once

#include <optional>

// The introduction tour: twelve pages, each a picture, a text and a numbered badge, turned
// with a back and a forward button.
namespace orrery {

inline constexpr int kTourPageCount = 12;

struct TourPage {
    const char* picture; // resource name of the page's screenshot
    const char* textKey; // its text in the strings resource; page 1's takes the program's name
    bool redBadge;       // the first and the last page stand out in red, the others are orange
};

// Page 1 to 12; any other number gives page 1.
const TourPage& tourPage(int page);

// What a turn does to the two buttons besides showing its page.
enum class TourButtons {
    unchanged,
    bothOn,
    backOffForwardOn, // arriving at the first page
    forwardOffBackOn, // arriving at the last page
};

struct TourTurn {
    int page;
    TourButtons buttons;
};

// The turns from the page shown; none at either end. Going back re-enables both buttons
// whenever it arrives at pages 8 to 11, going forward only when it arrives at page 2: the
// two directions are not mirror images.
std::optional<TourTurn> tourForward(int current);
std::optional<TourTurn> tourBack(int current);

} // namespace orrery
