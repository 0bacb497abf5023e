#include "customWin/WindowMain.h"

#include "customWin/Accessibility.h"
#include "customWin/AppDelegate.h"
#include "customWin/AppStyle.h"
#include "customWin/OpenGLCheck.h"
#include "customWin/mainWindow.h"
#include "resources/Artwork.h"
#include "resources/translations/Translations.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QSurfaceFormat>
#include <QTimer>

#include <cstdio>

namespace orrery::window {

void useSceneSurfaceFormat() {
    // The renderer needs OpenGL 3.3 core or later, and the scene an alpha channel so that
    // the backdrop shows through; the format must be set before any widget exists.
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setVersion(3, 3);
    format.setAlphaBufferSize(8);
    format.setDepthBufferSize(24);
    QSurfaceFormat::setDefaultFormat(format);
}

int runWindow(int argc, char** argv) {
    // Without a display the toolkit would abort with a page of its own; one line says it.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        const QByteArray program =
            QFileInfo(QString::fromLocal8Bit(argv[0])).fileName().toLocal8Bit();
        std::fprintf(stderr, "%s: no display to open the window on; see %s --help\n",
                     program.constData(), program.constData());
        return 1;
    }
    useSceneSurfaceFormat();
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("orrery"));
    translations::install(application, QLocale());
    applyAppStyle(application);
    announceWindowsAsWindows();
    if (const QString missing = missingOpenGL(); !missing.isEmpty()) {
        reportMissingOpenGL(QFileInfo(QString::fromLocal8Bit(argv[0])).fileName(), missing);
        return 1;
    }

    AppDelegate delegate;
    QApplication::setApplicationName(delegate.readAppname());
    // Closing the main window quits, whatever secondary windows are open.
    QObject::connect(&delegate.window(), &mainWindow::closing, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    delegate.applicationWillFinishLaunching();
    // Looking the icon up in the desktop's theme takes a while: after the first frame.
    QTimer::singleShot(0, &application,
                       [] { QApplication::setWindowIcon(artwork::applicationIcon()); });
    delegate.openFiles(QCoreApplication::arguments().mid(1));
    return QApplication::exec();
}

} // namespace orrery::window
