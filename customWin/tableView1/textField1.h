#pragma once

#include <QLineEdit>

namespace orrery::window {

// A text cell's field (textField1_01, textField1_05 to textField1_08). Every editing
// command (Return, Enter, Tab, Backtab, Escape, the arrows and other movement keys) hands
// the current text to the cell's handler and is swallowed: Tab commits, it does not move
// the focus, and the field stays where it is; Escape then also hands the keyboard back to
// the table. Typing alone reports nothing.
class textField1 : public QLineEdit {
    Q_OBJECT
public:
    explicit textField1(QWidget* parent);

signals:
    void commandIssued(const QString& text);
    // Escape: after its command, the keyboard goes back to the table's rows.
    void leaveRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace orrery::window
