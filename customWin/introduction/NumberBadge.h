#pragma once

#include <QColor>
#include <QImage>
#include <QString>

// The tour's page badge: a small square of colour with the page number in white, in the
// program's own badge font, with rounded corners.
namespace orrery::window {

inline constexpr int kBadgeSize = 16; // logical pixels
inline const QColor kBadgeRed{214, 48, 49};
inline const QColor kBadgeOrange{236, 133, 31};

// The square filled with `colour` and `text` centred on it, at `size` logical pixels and
// the screen's device-pixel ratio.
QImage stringImage7(const QString& text, const QColor& colour, int size = kBadgeSize,
                    qreal devicePixelRatio = 1.0);

// The image drawn, smoothly, through a rounded rectangle that covers all of it.
QImage roundCorners7(const QImage& image, qreal radius);

} // namespace orrery::window
