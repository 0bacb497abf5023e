#include "customWin/OpenGLCheck.h"

#include "customWin/Strings.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSurfaceFormat>

#include <cstdio>

namespace orrery::window {

QString missingOpenGL() {
    const QSurfaceFormat wanted = QSurfaceFormat::defaultFormat();
    const QString needed =
        QStringLiteral("OpenGL %1.%2 core").arg(wanted.majorVersion()).arg(wanted.minorVersion());
    QOpenGLContext context;
    if (!context.create())
        return QStringLiteral("%1: no OpenGL context can be made on the \"%2\" display")
            .arg(needed, QGuiApplication::platformName());
    if (context.format().version() < wanted.version())
        return QStringLiteral("%1: the display offers only OpenGL %2.%3")
            .arg(needed)
            .arg(context.format().majorVersion())
            .arg(context.format().minorVersion());
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface))
        return QStringLiteral("%1: the OpenGL context cannot be made current").arg(needed);
    context.doneCurrent();
    return {};
}

void reportMissingOpenGL(const QString& program, const QString& missing) {
    std::fprintf(
        stderr, "%s: the scene cannot be drawn (%s); pictures can still be made with '%s render'\n",
        qPrintable(program), qPrintable(missing), qPrintable(program));
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return;
    QMessageBox alert(QMessageBox::Critical, program, text("noOpenGLMsg"), QMessageBox::Ok);
    alert.setObjectName(QStringLiteral("noOpenGLAlert"));
    alert.setInformativeText(textWith("noOpenGLInformative", missing));
    alert.exec();
}

} // namespace orrery::window
