#include "resources/Artwork.h"

namespace orrery::artwork {

QIcon applicationIcon() {
    return QIcon::fromTheme(QStringLiteral("orrery"), QIcon(QStringLiteral(":/icons/orrery.svg")));
}

QIcon titleBarImage(const QString& name) {
    return QIcon(QStringLiteral(":/titlebar/") + name);
}

} // namespace orrery::artwork
