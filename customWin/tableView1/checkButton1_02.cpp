#include "customWin/tableView1/checkButton1_02.h"

#include <QPainter>

namespace orrery::window {

void checkButtonStyle1_02(QPainter& painter, const QRectF& frame, bool enabled, bool pressed,
                          bool checked) {
    painter.fillRect(frame.adjusted(2, 2, -2, -2), enabled ? QColor(Qt::white) : QColor(Qt::darkGray));
    painter.fillRect(frame.adjusted(4, 4, -4, -4),
                     QColor::fromRgbF(pressed ? 0.3f : 0.6f, pressed ? 0.3f : 0.6f,
                                      pressed ? 0.3f : 0.6f, 1.0f));
    if (checked)
        painter.fillRect(frame.adjusted(6, 6, -6, -6), QColor(0, 200, 0));
}

checkButton1_02::checkButton1_02(QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
}

void checkButton1_02::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int side = std::min(width(), height());
    const QRectF frame((width() - side) / 2.0, (height() - side) / 2.0, side, side);
    checkButtonStyle1_02(painter, frame, isEnabled(), isDown(), isChecked());
}

} // namespace orrery::window
