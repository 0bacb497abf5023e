#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// The main window's sheets and panels, met as a person meets them.
namespace orrery::bench {

// The visible sheet or panel of the window with that object name, once it shows; null
// when none showed in time.
QWidget* waitForSheet(QWidget& window, const char* name);
QFileDialog* waitForSavePanel(QWidget& window);

// Whether the window tells of a failure: an alert shows on it.
bool alertShows(QWidget& window);

// Types the path into the panel's name field, as a person would before pressing Save.
bool typeFileName(QFileDialog& panel, const QString& path);
// Presses the panel's Save button.
void pressSave(QFileDialog& panel);

} // namespace orrery::bench
