#pragma once

#include "core/app/DocumentArea.h"
#include "core/app/ScreenRect.h"

#include <vector>

// Where windows go on the screens there are today.
namespace orrery {

// The window of this size centred on the screen.
ScreenRect centredOn(const ScreenRect& screen, PixelSize window);

// A stored frame as it may be shown today: unchanged when enough of its title bar lies on
// one of the screens to grab it, else centred on the primary screen (first in the list).
ScreenRect bringOntoScreens(const ScreenRect& frame, const std::vector<ScreenRect>& screens);

// Where a secondary window (the style library, the find window) opens: at the frame it had
// last, brought onto the screens; the first time, at its own size near the top-right corner
// of the main window's frame.
ScreenRect secondaryWindowFrame(const ScreenRect& last, PixelSize size, const ScreenRect& main,
                                const std::vector<ScreenRect>& screens);

// The document size of a first start: 960 x 540 when that window fits the screen, else the
// largest document within the limits whose window fits (never below the limits).
PixelSize firstDocumentSize(const ScreenRect& screen);

} // namespace orrery
