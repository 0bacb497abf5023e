#pragma once

#include <QAbstractButton>
#include <QSignalBlocker>

namespace orrery::window {

// Boxes act on every change of their state, however it comes (a click, the keyboard, a
// screen reader's toggle action); a state the program shows is set without that effect.
inline void setCheckedQuietly(QAbstractButton& box, bool on) {
    const QSignalBlocker quiet(box);
    box.setChecked(on);
}

} // namespace orrery::window
