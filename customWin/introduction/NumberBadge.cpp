#include "customWin/introduction/NumberBadge.h"

#include <QFontDatabase>
#include <QPainter>

namespace orrery::window {
namespace {

// The badge font ships inside the program; the system's bold sans stands in should it
// ever fail to load.
QFont badgeFont(qreal pixelHeight) {
    static const QString family = [] {
        const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Univercity.otf"));
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        return families.isEmpty() ? QString() : families.first();
    }();
    QFont font(family);
    font.setBold(family.isEmpty());
    font.setPixelSize(qMax(1, qRound(pixelHeight)));
    return font;
}

} // namespace

QImage stringImage7(const QString& text, const QColor& colour, int size, qreal devicePixelRatio) {
    const int pixels = qRound(size * devicePixelRatio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(Qt::white);
    // Two digits must fit across; the font's figures sit a little high, so the box is
    // nudged down to centre them by eye.
    painter.setFont(badgeFont(pixels * 0.72));
    painter.drawText(QRectF(0, pixels * 0.06, pixels, pixels), Qt::AlignCenter, text);
    painter.end();
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

QImage roundCorners7(const QImage& image, qreal radius) {
    // A clip path would cut the corners without smoothing: the rounded rectangle is filled
    // with the image instead, in device pixels, and antialiased.
    const qreal ratio = image.devicePixelRatio();
    QImage source = image;
    source.setDevicePixelRatio(1.0);
    QImage rounded(image.size(), QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(source));
    painter.drawRoundedRect(QRectF(rounded.rect()), radius * ratio, radius * ratio);
    painter.end();
    rounded.setDevicePixelRatio(ratio);
    return rounded;
}

} // namespace orrery::window
