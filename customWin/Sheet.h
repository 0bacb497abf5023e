#pragma once

#include <QString>

#include <functional>

class QDialog;
class QWidget;

// Questions and panels drop from the top of the main window as sheets: window-modal,
// opened without blocking the event loop, centred 25 pixels below the window's top edge.
namespace orrery::window {

inline constexpr int kFirstButton = 1000;
inline constexpr int kSecondButton = 1001;
inline constexpr int kSheetDrop = 25;

// Makes a dialog a sheet of the window: no frame of its own (it hangs from the window's
// title bar), the program's icon where a message box has one, window-modal.
void makeSheet(QDialog& sheet);

// Moves an opened sheet to its place on the window.
void placeAsSheet(QDialog& sheet, const QWidget& window);

// A question with two buttons; `answered` gets kFirstButton or kSecondButton once, when the
// sheet ends. The buttons are named "sheetButton1000" and "sheetButton1001".
void askOnSheet(QWidget& window, const QString& message, const QString& informative,
                const QString& first, const QString& second, std::function<void(int)> answered);

} // namespace orrery::window
