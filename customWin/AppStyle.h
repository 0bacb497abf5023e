#pragma once

class QApplication;

namespace orrery::window {

// The program's look: Qt's Fusion style in night-sky colours, so that controls, menus and
// dialogs belong to the dark window around the scene.
void applyAppStyle(QApplication& application);

} // namespace orrery::window
