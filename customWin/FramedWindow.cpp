#include "customWin/FramedWindow.h"

#include "core/app/ScreenFit.h"
#include "customWin/DesktopScreens.h"

#include <QCloseEvent>

#include <utility>

namespace orrery::window {

FramedWindow::FramedWindow(QWidget* parent) : QWidget(parent, Qt::Tool) {
    settle_.setSingleShot(true);
    settle_.setInterval(300);
    connect(&settle_, &QTimer::timeout, this, [this] {
        // A desktop that draws no rim never makes the frame differ from the window.
        wantedFrame_.reset();
        emit frameToStore(frameGeometry());
    });
}

void FramedWindow::bringUp(const QRect& mainFrame) {
    if (!isVisible()) {
        const PixelSize size{frameGeometry().width(), frameGeometry().height()};
        showAtFrame(toQRect(
            secondaryWindowFrame(lastFrame_, size, toScreenRect(mainFrame), availableScreens())));
    }
    raise();
    activateWindow();
}

// A top-level widget's move() places its frame; resize() sizes what lies inside the rim.
void FramedWindow::showAtFrame(const QRect& frame) {
    const QSize rim = frameGeometry().size() - size();
    wantedFrame_ = frame;
    move(frame.topLeft());
    resize(frame.size() - rim);
    show();
}

void FramedWindow::frameChanged() {
    if (!isVisible())
        return;
    settle_.start();
    if (!wantedFrame_ || frameGeometry() == geometry())
        return;
    const QSize rim = frameGeometry().size() - size();
    const QRect wanted = *std::exchange(wantedFrame_, std::nullopt);
    if (frameGeometry().size() != wanted.size())
        resize(wanted.size() - rim);
}

void FramedWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    frameChanged();
}

void FramedWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    frameChanged();
}

void FramedWindow::closeEvent(QCloseEvent* event) {
    settle_.stop();
    wantedFrame_.reset();
    lastFrame_ = toScreenRect(frameGeometry());
    emit frameToStore(frameGeometry());
    event->accept();
}

} // namespace orrery::window
