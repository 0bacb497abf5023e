#pragma once

// A rectangle on the desktop: a window's frame or a screen's available area (without
// panels). Screen coordinates have their origin at the top-left of the virtual desktop,
// y downwards. A frame of no size is one that was never placed.
namespace orrery {

struct ScreenRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool hasSize() const { return width > 0 && height > 0; }
    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

} // namespace orrery
