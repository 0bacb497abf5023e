#include "customWin/tableView1/Swatches.h"

#include "core/styles/GradientLibrary.h"
#include "core/styles/StyleImages.h"
#include "core/styles/SurfaceNames.h"
#include "imageio/QtImageWrap.h"
#include "imageio/SurfaceLibrary.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QScreen>

#include <cmath>

namespace orrery::window {
namespace {

QPixmap fromImage(const Image& image, qreal scale) {
    if (image.isNull())
        return {};
    QPixmap pixmap = QPixmap::fromImage(imageio::wrapImage(image));
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

imageio::SurfaceLibrary& thumbnails() {
    static imageio::SurfaceLibrary library;
    return library;
}

qreal pictureScale() {
    return isRetina() ? 2.0 : 1.0;
}

} // namespace

bool isRetina() {
    qreal largest = 1.0;
    for (const QScreen* screen : QGuiApplication::screens())
        largest = std::max(largest, screen->devicePixelRatio());
    return largest > 1.0;
}

QPixmap styleSwatch(long index, int side) {
    if (index < 1 || index >= gradientLibrary::kCatalogueSize)
        return {};
    const QString key = QStringLiteral("style-%1-%2").arg(index).arg(side);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const qreal scale = pictureScale();
    const double pixels = std::round(side * scale);
    pixmap = fromImage(styleSwatchImage(index, pixels), scale);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

Image styleSwatchImage(std::int64_t index, double pixels) {
    return makeGradientImage(gradientLibrary().getGradient(index), pixels, pixels, 270.0);
}

QPixmap surfaceSwatch(long index, int height) {
    if (index < 1 || index > kSurfaceCount)
        return {};
    const QString key = QStringLiteral("surface-%1-%2").arg(index).arg(height);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const Image* thumbnail = thumbnails().thumbnail(index);
    if (thumbnail == nullptr)
        return {};
    // The thumbnails are twice as wide as high, like the surfaces.
    const qreal scale = pictureScale();
    const std::optional<Image> sized =
        imageResize(*thumbnail, static_cast<int>(std::round(2 * height * scale)));
    pixmap = sized ? fromImage(*sized, scale) : QPixmap();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace orrery::window
