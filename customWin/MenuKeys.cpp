#include "customWin/MenuKeys.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>

namespace orrery::window {
namespace {

// Keys whose meaning inside a field comes first: its own editing.
bool fieldKeepsKey(const QKeyEvent& key, const QLineEdit& field) {
    if (key.matches(QKeySequence::Undo))
        return field.isUndoAvailable();
    if (key.matches(QKeySequence::Redo))
        return field.isRedoAvailable();
    for (QKeySequence::StandardKey own :
         {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste, QKeySequence::SelectAll,
          QKeySequence::Delete})
        if (key.matches(own))
            return true;
    return false;
}

class MenuKeyRouter : public QObject {
public:
    MenuKeyRouter(QObject& owner, const QWidget& menus) : QObject(&owner), menus_(&menus) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride || menus_ == nullptr)
            return false;
        auto* field = qobject_cast<QLineEdit*>(watched);
        auto* key = static_cast<QKeyEvent*>(event);
        if (field == nullptr || fieldKeepsKey(*key, *field) || !isMenuKey(*key))
            return false;
        // Not taken by the field: the menu item's shortcut gets the key.
        event->ignore();
        return true;
    }

private:
    bool isMenuKey(const QKeyEvent& key) const {
        const QKeySequence pressed(key.keyCombination());
        for (const QAction* item : menus_->findChildren<QAction*>())
            if (item->isEnabled() && item->shortcuts().contains(pressed))
                return true;
        return false;
    }

    QPointer<const QWidget> menus_;
};

} // namespace

void routeMenuKeys(QObject& owner, const QWidget& menus) {
    QApplication::instance()->installEventFilter(new MenuKeyRouter(owner, menus));
}

} // namespace orrery::window
