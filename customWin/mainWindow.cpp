#include "customWin/mainWindow.h"

#include "core/app/DocumentArea.h"
#include "core/package/SystemSource.h"
#include "customWin/mainView.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace orrery::window {
namespace {

// How far in from the window's border the pointer grabs an edge.
constexpr int kResizeMargin = 6;
// A resize by hand sends a stream of size changes; it has ended when they pause this long.
constexpr int kLiveResizePauseMs = 300;

Qt::CursorShape cursorFor(Qt::Edges edges) {
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (horizontal && vertical) {
        const bool falling =
            (edges & Qt::LeftEdge) ? bool(edges & Qt::TopEdge) : bool(edges & Qt::BottomEdge);
        return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    }
    return horizontal ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

mainWindow::mainWindow() : content_(new mainView(this)) {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowFlag(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_DeleteOnClose, false);
    limitSize(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content_);
    liveResize_.setSingleShot(true);
    liveResize_.setInterval(kLiveResizePauseMs);
    connect(&liveResize_, &QTimer::timeout, this, &mainWindow::liveResizeEnded);
    ownResizeSettled_.setSingleShot(true);
    ownResizeSettled_.setInterval(kLiveResizePauseMs);
    connect(&ownResizeSettled_, &QTimer::timeout, this, [this] { ownResize_ = false; });
    qApp->installEventFilter(this);
    setAcceptDrops(true);
}

void mainWindow::limitSize(bool limited) {
    const PixelSize smallest = minimumWindowSize();
    const PixelSize largest = maximumWindowSize();
    setMinimumSize(smallest.width, smallest.height);
    if (limited)
        setMaximumSize(largest.width, largest.height);
    else
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void mainWindow::enterFullScreen() {
    frameBeforeFullScreen_ = geometry();
    limitSize(false);
    showFullScreen();
}

void mainWindow::beginOwnResize() {
    ownResize_ = true;
    ownResizeSettled_.start();
}

void mainWindow::resizeOwn(QSize size) {
    beginOwnResize();
    resize(size);
}

void mainWindow::resizeEvent(QResizeEvent* event) {
    if (ownResize_)
        ownResizeSettled_.start();
    QWidget::resizeEvent(event);
    emit resized();
    if (isVisible() && !isFullScreen())
        liveResize_.start();
}

void mainWindow::closeEvent(QCloseEvent* event) {
    if (closeGuard_ && !closeGuard_()) {
        event->ignore();
        return;
    }
    emit closing();
    event->accept();
}

namespace {

QStringList packagesIn(const QMimeData* data) {
    QStringList paths;
    for (const QUrl& url : data->urls()) {
        const QFileInfo dropped(url.toLocalFile());
        const bool package = dropped.isDir() && dropped.suffix() == QLatin1String("kvx");
        const bool picture =
            dropped.isFile() && isSystemPictureName(dropped.fileName().toStdString());
        if (url.isLocalFile() && (package || picture))
            paths.append(dropped.absoluteFilePath());
    }
    return paths;
}

} // namespace

void mainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!packagesIn(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void mainWindow::dropEvent(QDropEvent* event) {
    const QStringList paths = packagesIn(event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    emit packagesDropped(paths);
}

void mainWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    // Maximising, full screen and back are the person's, whatever the program did before.
    ownResize_ = false;
    ownResizeSettled_.stop();
    if (isFullScreen() == wasFullScreen_)
        return;
    wasFullScreen_ = isFullScreen();
    // Full screen from the window manager (a key of its own) lifts the limit late; asking
    // again lets the window manager cover the screen.
    if (wasFullScreen_ && maximumWidth() != QWIDGETSIZE_MAX) {
        frameBeforeFullScreen_ = normalGeometry();
        limitSize(false);
        showFullScreen();
    } else if (!wasFullScreen_) {
        // Back exactly to the frame it had, which the limit would otherwise cut first.
        limitSize(true);
        if (frameBeforeFullScreen_.isValid())
            setGeometry(frameBeforeFullScreen_);
    }
    if (wasFullScreen_)
        emit enteredFullScreen();
    else
        emit leftFullScreen();
}

Qt::Edges mainWindow::edgesAt(const QPoint& p) const {
    if (isFullScreen() || isMaximized())
        return {};
    Qt::Edges edges;
    if (p.x() < kResizeMargin)
        edges |= Qt::LeftEdge;
    if (p.x() >= width() - kResizeMargin)
        edges |= Qt::RightEdge;
    if (p.y() < kResizeMargin)
        edges |= Qt::TopEdge;
    if (p.y() >= height() - kResizeMargin)
        edges |= Qt::BottomEdge;
    return edges;
}

void mainWindow::showEdgeCursor(Qt::Edges edges) {
    if (edges == cursorEdges_)
        return;
    if (cursorEdges_)
        QApplication::restoreOverrideCursor();
    if (edges)
        QApplication::setOverrideCursor(cursorFor(edges));
    cursorEdges_ = edges;
}

bool mainWindow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseMove && type != QEvent::MouseButtonPress)
        return QWidget::eventFilter(watched, event);
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != this)
        return QWidget::eventFilter(watched, event);
    auto* mouse = static_cast<QMouseEvent*>(event);
    const Qt::Edges edges = edgesAt(mapFromGlobal(mouse->globalPosition().toPoint()));
    if (type == QEvent::MouseMove && mouse->buttons() == Qt::NoButton)
        showEdgeCursor(edges);
    if (type == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton && edges &&
        windowHandle() != nullptr) {
        windowHandle()->startSystemResize(edges);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orrery::window
