#include "customWin/tableView1/colorWell1_09.h"

#include "customWin/ColorConversion.h"

#include <QColorDialog>
#include <QPainter>
#include <QPainterPath>

namespace orrery::window {

void paintColorSwatch(QPainter& painter, const QRectF& cell, const Color& color, bool enabled) {
    const QRectF frame = cell.adjusted(10.5, 5.5, -10.5, -5.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(frame, 4, 4);
    painter.fillPath(shape, toQColor(color));
    painter.setPen(QPen(enabled ? QColor(255, 255, 255, 150) : QColor(255, 255, 255, 50), 1));
    painter.drawPath(shape);
    painter.restore();
}

colorWell1_09::colorWell1_09(QWidget* parent) : QToolButton(parent) {
    setObjectName(QStringLiteral("colorWell1_09"));
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QToolButton::clicked, this, &colorWell1_09::chooseColor);
}

void colorWell1_09::setColor(const Color& color) {
    color_ = color;
    update();
}

void colorWell1_09::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintColorSwatch(painter, QRectF(rect()), color_, isEnabled());
}

void colorWell1_09::chooseColor() {
    auto* dialog = new QColorDialog(toQColor(color_), window());
    dialog->setObjectName(QStringLiteral("colorDialog"));
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this,
            [this](const QColor& chosen) { emit colorChosen(fromQColor(chosen)); });
    dialog->open();
}

} // namespace orrery::window
