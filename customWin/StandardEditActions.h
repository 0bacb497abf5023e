#pragma once

#include <QString>

class QLineEdit;

namespace orrery::window {

struct MenuItems;

// The Edit menu's text commands act on the text field that has the keyboard focus (and
// Select All also on a list or table), as in every desktop program. Undo and Redo are the
// controller's: they reach the field first and the system's history after it.
void connectStandardEditActions(const MenuItems& items);

// The text field that has the keyboard focus, or null.
QLineEdit* focusedField();

// The selected text of the focused text field, or empty.
QString selectedTextOfFocus();

} // namespace orrery::window
