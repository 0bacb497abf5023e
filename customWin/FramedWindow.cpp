#include "customWin/FramedWindow.h"

#include <QCloseEvent>

namespace orrery::window {

FramedWindow::FramedWindow(QWidget* parent) : QWidget(parent, Qt::Tool) {
    settle_.setSingleShot(true);
    settle_.setInterval(300);
    connect(&settle_, &QTimer::timeout, this, &FramedWindow::frameSettled);
}

void FramedWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (isVisible())
        settle_.start();
}

void FramedWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (isVisible())
        settle_.start();
}

void FramedWindow::closeEvent(QCloseEvent* event) {
    settle_.stop();
    emit closing();
    event->accept();
}

} // namespace orrery::window
