#include "customWin/TitleLabel.h"

#include <QMouseEvent>
#include <QWindow>

namespace orrery::window {

TitleLabel::TitleLabel(QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignCenter);
    setTextInteractionFlags(Qt::NoTextInteraction);
    QFont font = this->font();
    font.setPixelSize(14);
    setFont(font);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, Qt::white);
    setPalette(colours);
}

void TitleLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && window()->windowHandle() != nullptr &&
        !window()->isFullScreen()) {
        window()->windowHandle()->startSystemMove();
        event->accept();
        return;
    }
    QLabel::mousePressEvent(event);
}

void TitleLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit doubleClicked();
        event->accept();
        return;
    }
    QLabel::mouseDoubleClickEvent(event);
}

} // namespace orrery::window
