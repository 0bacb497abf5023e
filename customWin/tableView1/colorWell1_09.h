#pragma once

#include "core/model/Color.h"

#include <QToolButton>

namespace orrery::window {

// A colour well: a button painted with its colour that opens the colour dialog; the
// chosen colour is reported in the calibrated RGB the records keep.
class colorWell1_09 : public QToolButton {
    Q_OBJECT
public:
    explicit colorWell1_09(QWidget* parent);

    void setColor(const Color& color);
    const Color& color() const { return color_; }

signals:
    void colorChosen(const orrery::Color& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void chooseColor();

    Color color_;
};

// Paints a colour swatch as the wells and the table's colour cells show it, inside a cell.
void paintColorSwatch(QPainter& painter, const QRectF& cell, const Color& color, bool enabled);

} // namespace orrery::window
