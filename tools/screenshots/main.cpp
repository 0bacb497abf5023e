// Pictures of the real window in the states a person sees: those of the user guide, or
// those of the introduction tour. Run on an X server with a window manager:
//   tests/window/with-desktop build/release/tools/screenshots/orrery-screenshots OUT PACKAGE
//   tests/window/with-desktop build/release/tools/screenshots/orrery-screenshots --tour OUT PACKAGE
#include "customWin/AppDelegate.h"
#include "customWin/AppStyle.h"
#include "customWin/WindowMain.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "resources/translations/Translations.h"
#include "tools/screenshots/Shots.h"

#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWidget>

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    const bool tour = argc > 1 && std::strcmp(argv[1], "--tour") == 0;
    if (argc < (tour ? 4 : 3)) {
        std::fprintf(stderr, "usage: %s [--tour] OUTPUT-FOLDER PACKAGE.kvx\n", argv[0]);
        return 1;
    }
    const QString out = QString::fromLocal8Bit(argv[tour ? 2 : 1]);
    const QString package = QString::fromLocal8Bit(argv[tour ? 3 : 2]);
    QTemporaryDir dataHome;
    // Settings and documents of its own: the pictures show a first start, and the panels
    // open in an empty documents folder.
    qputenv("XDG_DATA_HOME", dataHome.path().toLocal8Bit());
    qputenv("HOME", dataHome.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", dataHome.path().toLocal8Bit());
    orrery::window::useSceneSurfaceFormat();
    QApplication application(argc, argv);
    orrery::translations::install(application, QLocale());
    orrery::window::applyAppStyle(application);
    QDir().mkpath(out);

    orrery::window::AppDelegate app;
    // The first start's tour, which follows the first frame, is pictured on its own; the
    // window is pictured without it.
    QSignalSpy firstFrame(&app.sceneview(), &orrery::window::sceneView::framePainted);
    app.applicationWillFinishLaunching();
    if (firstFrame.count() > 0 || firstFrame.wait(20000))
        if (auto* introduction =
                app.window().findChild<QWidget*>(QStringLiteral("introductionWindow")))
            introduction->close();
    if (tour)
        orrery::screenshots::makeTourPictures(app, out, package);
    else
        orrery::screenshots::makeGuidePictures(app, out, package);
    return 0;
}
