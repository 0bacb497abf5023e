#pragma once

#include "core/app/DocumentArea.h"

#include <vector>

// Where windows go on the screens there are today. Screen coordinates have their origin at
// the top-left of the virtual desktop, y downwards; a rectangle is a window's frame or a
// screen's available area (without panels).
namespace orrery {

struct ScreenRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

// The window of this size centred on the screen.
ScreenRect centredOn(const ScreenRect& screen, PixelSize window);

// A stored frame as it may be shown today: unchanged when enough of its title bar lies on
// one of the screens to grab it, else centred on the primary screen (first in the list).
ScreenRect bringOntoScreens(const ScreenRect& frame, const std::vector<ScreenRect>& screens);

// The document size of a first start: 960 x 540 when that window fits the screen, else the
// largest document within the limits whose window fits (never below the limits).
PixelSize firstDocumentSize(const ScreenRect& screen);

} // namespace orrery
