#include "customWin/ImageButton.h"

#include "resources/Artwork.h"

#include <QPainter>

namespace orrery::window {

ImageButton::ImageButton(const QString& imageName, QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setImage(imageName);
}

void ImageButton::setImage(const QString& imageName) {
    if (imageName == imageName_)
        return;
    imageName_ = imageName;
    image_ = artwork::titleBarImage(imageName);
    update();
}

void ImageButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (isDown())
        painter.setOpacity(0.7);
    image_.paint(&painter, rect());
}

void ImageButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    emit pointerEntered();
}

void ImageButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    emit pointerLeft();
}

} // namespace orrery::window
