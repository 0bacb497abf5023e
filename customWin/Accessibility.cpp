#include "customWin/Accessibility.h"

#include "customWin/FramedWindow.h"
#include "customWin/mainWindow.h"

#include <QAccessibleWidget>

namespace orrery::window {
namespace {

QAccessibleInterface* windowInterface(const QString&, QObject* object) {
    if (qobject_cast<mainWindow*>(object) != nullptr ||
        qobject_cast<FramedWindow*>(object) != nullptr)
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window);
    return nullptr;
}

} // namespace

void announceWindowsAsWindows() {
    QAccessible::installFactory(windowInterface);
}

} // namespace orrery::window
