#pragma once

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace orrery::window {

class mainView;

// The main window. It has no frame from the desktop: the program draws its own title bar,
// so the window moves by its title and resizes by its edges and corners itself. It tells
// its controller of every change that the window's rules react to.
class mainWindow : public QWidget {
    Q_OBJECT
public:
    mainWindow();

    mainView& content() { return *content_; }
    // Asked before the window closes; false keeps it open (the guard asks the person).
    void setCloseGuard(std::function<bool()> guard) { closeGuard_ = std::move(guard); }

    // The program sizes the window itself: the size changes this brings, including the
    // window manager's answer to it, are the program's own and not the person's.
    void resizeOwn(QSize size);
    void beginOwnResize();
    bool resizeIsOwn() const { return ownResize_; }

    // Full screen covers the screen whatever its size: the largest document's limit on the
    // window's size is lifted while it lasts.
    void enterFullScreen();

signals:
    void resized();
    // The pointer let go of the window's edge: a resize by hand has ended.
    void liveResizeEnded();
    void closing();
    void enteredFullScreen();
    void leftFullScreen();
    // Project packages (folders named *.kvx) dropped on the window.
    void packagesDropped(const QStringList& paths);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Qt::Edges edgesAt(const QPoint& windowPoint) const;
    void limitSize(bool limited);
    void showEdgeCursor(Qt::Edges edges);

    mainView* content_;
    QTimer liveResize_;
    QTimer ownResizeSettled_;
    bool ownResize_ = false;
    QRect frameBeforeFullScreen_;
    Qt::Edges cursorEdges_;
    bool wasFullScreen_ = false;
    std::function<bool()> closeGuard_;
};

} // namespace orrery::window
