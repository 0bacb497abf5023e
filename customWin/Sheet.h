#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

// Questions and panels drop from the top of the main window as sheets: window-modal,
// opened without blocking the event loop, centred 25 pixels below the window's top edge.
namespace orrery::window {

inline constexpr int kFirstButton = 1000;
inline constexpr int kSheetDrop = 25;

// Makes a dialog a sheet of the window: no frame of its own (it hangs from the window's
// title bar), the program's icon where a message box has one, window-modal.
void makeSheet(QDialog& sheet);

// Moves an opened sheet to its place on the window.
void placeAsSheet(QDialog& sheet, const QWidget& window);

// A question with its buttons, the first the default and the last the one Escape presses;
// `answered` gets 1000 for the first button, 1001 for the second and so on, once, when the
// sheet ends. The buttons are named "sheetButton1000", "sheetButton1001", ... An accessory
// widget, if any, goes between the texts and the buttons.
void askOnSheet(QWidget& window, const QString& message, const QString& informative,
                const QStringList& buttons, std::function<void(int)> answered,
                QWidget* accessory = nullptr);

// A sheet that lends its place to contents made once and kept between openings: made anew
// for every opening, at a fixed size, with the contents in a view of its own.
class ContentSheet : public QDialog {
    Q_OBJECT
public:
    // The title is never drawn (a sheet has no title bar) but names the sheet to screen
    // readers.
    ContentSheet(QWidget& contents, QWidget& window, QSize size, const QString& title,
                 const QString& sheetName, const QString& viewName);
    // Hides the sheet; half a second later (so that its closing is drawn whole) the contents
    // are taken back out, unless a new sheet has taken them meanwhile, and the sheet goes.
    void finish();

private:
    void releaseContents();

    QWidget* view_;
    QWidget& contents_;
};

} // namespace orrery::window
