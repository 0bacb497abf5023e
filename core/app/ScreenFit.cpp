#include "core/app/ScreenFit.h"

#include <algorithm>

namespace orrery {
namespace {

// The strip of the title bar by which a window is dragged, and how much of it must be
// reachable: enough to take hold of it with the mouse.
constexpr int kTitleStrip = 28;
constexpr int kGraspableWidth = 100;
constexpr int kFirstWidth = 960;
constexpr int kFirstHeight = 540;
// A secondary window's first place: inside the main window's right edge, below its title.
constexpr int kSecondaryInset = 40;
constexpr int kSecondaryDrop = 80;

int overlap(int start0, int length0, int start1, int length1) {
    return std::max(0, std::min(start0 + length0, start1 + length1) - std::max(start0, start1));
}

} // namespace

ScreenRect centredOn(const ScreenRect& screen, PixelSize window) {
    return {screen.left + (screen.width - window.width) / 2,
            screen.top + (screen.height - window.height) / 2, window.width, window.height};
}

ScreenRect bringOntoScreens(const ScreenRect& frame, const std::vector<ScreenRect>& screens) {
    if (screens.empty())
        return frame;
    for (const ScreenRect& screen : screens) {
        const int across = overlap(frame.left, frame.width, screen.left, screen.width);
        const int down = overlap(frame.top, kTitleStrip, screen.top, screen.height);
        if (across >= std::min(kGraspableWidth, frame.width) && down > 0)
            return frame;
    }
    const ScreenRect& primary = screens.front();
    return centredOn(
        primary, {std::min(frame.width, primary.width), std::min(frame.height, primary.height)});
}

ScreenRect secondaryWindowFrame(const ScreenRect& last, PixelSize size, const ScreenRect& main,
                                const std::vector<ScreenRect>& screens) {
    const ScreenRect frame = last.hasSize()
                                 ? last
                                 : ScreenRect{main.left + main.width - size.width - kSecondaryInset,
                                              main.top + kSecondaryDrop, size.width, size.height};
    return bringOntoScreens(frame, screens);
}

PixelSize firstDocumentSize(const ScreenRect& screen) {
    const PixelSize room = documentSizeForWindow({screen.width, screen.height});
    return {
        std::clamp(std::min(kFirstWidth, room.width), kDocumentWidthMin, kDocumentWidthMax),
        std::clamp(std::min(kFirstHeight, room.height), kDocumentHeightMin, kDocumentHeightMax)};
}

} // namespace orrery
