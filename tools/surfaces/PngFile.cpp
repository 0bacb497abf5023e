#include "tools/surfaces/PngFile.h"

#include <QSaveFile>

namespace orrery::surfaces {

QImage imageView(const Image& image) {
    if (image.isNull())
        return QImage();
    return QImage(image.pixels.data(), image.width, image.height,
                  static_cast<qsizetype>(image.stride()), QImage::Format_RGBA8888);
}

QString writePng(const QImage& image, const QString& path) {
    if (image.isNull())
        return QStringLiteral("%1: nothing to write").arg(path);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    if (!image.save(&file, "PNG")) {
        file.cancelWriting();
        return QStringLiteral("%1: the PNG encoder failed").arg(path);
    }
    if (!file.commit())
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    return {};
}

} // namespace orrery::surfaces
