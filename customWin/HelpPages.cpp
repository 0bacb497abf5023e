#include "customWin/HelpPages.h"

#include "customWin/Strings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace orrery::window {

QUrl userGuideAddress() {
    const QString installed = QCoreApplication::applicationDirPath() +
                              QStringLiteral("/../share/doc/orrery/guide/index.html");
    const QString candidates[] = {installed, QStringLiteral(ORRERY_SOURCE_GUIDE)};
    for (const QString& candidate : candidates)
        if (QFileInfo::exists(candidate))
            return QUrl::fromLocalFile(QDir::cleanPath(candidate));
    return QUrl::fromLocalFile(QDir::cleanPath(installed));
}

QUrl supportPageAddress() {
    return QUrl(text("supportPageAddress"));
}

} // namespace orrery::window
