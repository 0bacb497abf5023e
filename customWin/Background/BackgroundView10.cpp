#include "customWin/Background/BackgroundView10.h"

#include <QPainter>
#include <QRadialGradient>

namespace orrery::window {

BackgroundView10::BackgroundView10(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("backview10"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BackgroundView10::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0.0, QColor(27, 33, 58));
    sky.setColorAt(0.45, QColor(16, 20, 38));
    sky.setColorAt(1.0, QColor(10, 12, 24));
    painter.fillRect(rect(), sky);
    QRadialGradient glow(width() * 0.5, -height() * 0.15, width() * 0.7);
    glow.setColorAt(0.0, QColor(90, 120, 210, 46));
    glow.setColorAt(1.0, QColor(90, 120, 210, 0));
    painter.fillRect(rect(), glow);
}

} // namespace orrery::window
