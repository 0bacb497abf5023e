#pragma once

class QComboBox;
class QString;

namespace orrery::window {

// A pop-up menu's name, which its list of choices shares when it opens: a screen reader
// reads the list by the menu's name.
void nameChoices(QComboBox& menu, const QString& name);

// Our windows are plain widgets, which the accessibility bus would list as fillers; a
// screen reader should announce them as windows, by their titles.
void announceWindowsAsWindows();

} // namespace orrery::window
