#include "tools/surfaces/PngFile.h"

#include <QSaveFile>

namespace orrery::surfaces {

QImage imageView(const Image& image) {
    if (image.isNull())
        return QImage();
    return QImage(image.pixels.data(), image.width, image.height,
                  static_cast<qsizetype>(image.stride()), QImage::Format_RGBA8888);
}

QString writePng(const QImage& image, const QString& path, PngCompression compression) {
    if (image.isNull())
        return QStringLiteral("%1: nothing to write").arg(path);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    // Qt's PNG quality 100 means zlib level 0; -1 keeps its default compression.
    const int quality = compression == PngCompression::Stored ? 100 : -1;
    if (!image.save(&file, "PNG", quality)) {
        file.cancelWriting();
        return QStringLiteral("%1: the PNG encoder failed").arg(path);
    }
    if (!file.commit())
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    return {};
}

} // namespace orrery::surfaces
