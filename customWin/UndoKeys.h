#pragma once

class QObject;

namespace orrery::window {

// A text field takes the Undo and Redo keys only while it has typing of its own to take
// back or do again; otherwise the keys reach the Edit menu and with it the system's
// history. Without this, a field that merely has the focus (a size field after a button
// went away) would swallow Ctrl+Z.
// The rule holds for the whole application as long as `owner` lives.
void routeUndoKeys(QObject& owner);

} // namespace orrery::window
