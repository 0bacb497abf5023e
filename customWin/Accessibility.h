#pragma once

namespace orrery::window {

// Our windows are plain widgets, which the accessibility bus would list as panes; a
// screen reader should announce them as windows.
void announceWindowsAsWindows();

} // namespace orrery::window
