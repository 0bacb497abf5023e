#include "customWin/HelpPages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace orrery::window {
namespace {

QUrl shippedPage(const QString& installedPage, const QString& builtPage) {
    const QString installed = QCoreApplication::applicationDirPath() +
                              QStringLiteral("/../share/doc/orrery/") + installedPage;
    const QString candidates[] = {installed, builtPage};
    for (const QString& candidate : candidates)
        if (QFileInfo::exists(candidate))
            return QUrl::fromLocalFile(QDir::cleanPath(candidate));
    return QUrl::fromLocalFile(QDir::cleanPath(installed));
}

} // namespace

QUrl userGuideAddress() {
    return shippedPage(QStringLiteral("guide/index.html"), QStringLiteral(ORRERY_SOURCE_GUIDE));
}

QUrl supportPageAddress() {
    return shippedPage(QStringLiteral("support/index.html"),
                       QStringLiteral(ORRERY_BUILT_SUPPORT_PAGE));
}

} // namespace orrery::window
