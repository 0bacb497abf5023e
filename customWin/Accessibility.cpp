#include "customWin/Accessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QDialog>

namespace orrery::window {
namespace {

// Every window of the program that is no dialog (the main window, the tour, the style
// library and the find window); dialogs, sheets and alerts have their roles from the toolkit.
QAccessibleInterface* windowInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->isWindow() || qobject_cast<QDialog*>(object) != nullptr)
        return nullptr;
    const Qt::WindowType type = widget->windowType();
    if (type != Qt::Window && type != Qt::Tool)
        return nullptr;
    return new QAccessibleWidget(widget, QAccessible::Window);
}

} // namespace

void nameChoices(QComboBox& menu, const QString& name) {
    menu.setAccessibleName(name);
    menu.view()->setAccessibleName(name);
}

void announceWindowsAsWindows() {
    QAccessible::installFactory(windowInterface);
}

} // namespace orrery::window
