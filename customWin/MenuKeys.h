#pragma once

class QObject;
class QWidget;

namespace orrery::window {

// The menus' key equivalents work wherever the keyboard is. A text field keeps only the
// keys that mean something to it: cutting, copying, pasting, selecting all and deleting,
// and Undo and Redo while it has typing of its own to take back or do again. Every other
// menu key (Ctrl+E, Ctrl+S, F11, Ctrl+Z with nothing typed, ...) reaches its menu item,
// although a field would otherwise take it (Ctrl+E moves to the end of the line).
// The rule holds for the whole application as long as `owner` lives; the menu items are
// the actions under `menus`.
void routeMenuKeys(QObject& owner, const QWidget& menus);

} // namespace orrery::window
