#pragma once

class QApplication;

namespace orrery::window {

// The program's look: Qt's Fusion style in night-sky colours, so that controls, menus and
// dialogs belong to the dark window around the scene.
void applyAppStyle(QApplication& application);

// Sheets and popovers float over the window with a slightly lighter face and a hairline rim.
inline constexpr const char* kFloatingFace = "#262d47";
inline constexpr const char* kFloatingRim = "#4d587e";

} // namespace orrery::window
