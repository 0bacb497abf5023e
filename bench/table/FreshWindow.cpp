#include "bench/table/FreshWindow.h"

#include "bench/table/Waiting.h"
#include "customWin/AppStyle.h"
#include "customWin/WindowMain.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "resources/translations/Translations.h"

#include <QApplication>
#include <QLocale>
#include <QScreen>

namespace orrery::bench {

int runWithApplication(int argc, char** argv, const std::function<int()>& body) {
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) // where there is none, Qt warns
        qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    window::useSceneSurfaceFormat();
    QApplication application(argc, argv);
    translations::install(application, QLocale(QLocale::English));
    window::applyAppStyle(application);
    return body();
}

FreshWindow::FreshWindow() {
    qputenv("XDG_DATA_HOME", dataHome_.path().toLocal8Bit());
    app_ = std::make_unique<window::AppDelegate>();
    Arrival firstFrame(&app_->sceneview(), &window::sceneView::framePainted);
    const Clock::time_point start = Clock::now();
    app_->applicationWillFinishLaunching();
    // Without a window manager nothing else gives the window the keyboard.
    app_->window().activateWindow();
    ready_ = firstFrame.millisecondsFrom(start).has_value();
}

bool FreshWindow::fits() {
    QWidget& window = app_->window();
    return window.screen()->geometry().contains(window.frameGeometry());
}

} // namespace orrery::bench
