#include "customWin/tableView1/textField1.h"

#include <QKeyEvent>

namespace orrery::window {
namespace {

bool isCommand(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

} // namespace

textField1::textField1(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setStyleSheet(QStringLiteral(
        "QLineEdit { background: rgba(255, 255, 255, 24); color: white; margin: 2px;"
        " border: 1px solid rgba(255, 255, 255, 60); border-radius: 4px; padding: 0 3px; }"
        "QLineEdit:focus { background: rgba(0, 0, 0, 70); border-color: #a9c2ff; }"));
}

bool textField1::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // Tab and Backtab never reach keyPressEvent: the widget would move the focus first.
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            emit commandIssued(text());
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void textField1::keyPressEvent(QKeyEvent* event) {
    if (isCommand(event->key())) {
        emit commandIssued(text());
        event->accept();
        if (event->key() == Qt::Key_Escape)
            emit leaveRequested();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace orrery::window
