#pragma once

namespace orrery::window {

// Our windows are plain widgets, which the accessibility bus would list as fillers; a
// screen reader should announce them as windows, by their titles.
void announceWindowsAsWindows();

} // namespace orrery::window
