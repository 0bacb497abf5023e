#include "tests/window/WindowTestSupport.h"

#include "customWin/mainWindow.h"

#include <QCoreApplication>
#include <QScreen>
#include <QTest>

namespace orrery::window::testing {

FreshStart::FreshStart() {
    qputenv("XDG_DATA_HOME", dataHome_.path().toLocal8Bit());
    delegate_ = std::make_unique<AppDelegate>();
}

FreshStart::~FreshStart() {
    delegate_.reset();
    qunsetenv("XDG_DATA_HOME");
}

void FreshStart::start() {
    delegate_->applicationWillFinishLaunching();
    mainWindow& window = delegate_->window();
    // Under Xvfb there is no window manager to give the window the keyboard.
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

QString FreshStart::appFolder() const {
    return dataHome_.path() + QLatin1Char('/') + QCoreApplication::applicationName();
}

void FreshStart::restart() {
    delegate_.reset();
    delegate_ = std::make_unique<AppDelegate>();
    start();
}

QColor pixelOnScreen(QWidget& widget, QPoint point) {
    const QPoint global = widget.mapToGlobal(point);
    const QPixmap shot = widget.screen()->grabWindow(0, global.x(), global.y(), 1, 1);
    return shot.toImage().pixelColor(0, 0);
}

} // namespace orrery::window::testing
