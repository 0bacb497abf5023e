#include "customWin/UndoKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace orrery::window {
namespace {

class UndoKeyRouter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride)
            return false;
        auto* field = qobject_cast<QLineEdit*>(watched);
        if (field == nullptr)
            return false;
        auto* key = static_cast<QKeyEvent*>(event);
        const bool passOn = (key->matches(QKeySequence::Undo) && !field->isUndoAvailable()) ||
                            (key->matches(QKeySequence::Redo) && !field->isRedoAvailable());
        if (!passOn)
            return false;
        // Not taken by the field: the shortcut of the menu item gets the key.
        event->ignore();
        return true;
    }
};

} // namespace

void routeUndoKeys(QObject& owner) {
    QApplication::instance()->installEventFilter(new UndoKeyRouter(&owner));
}

} // namespace orrery::window
