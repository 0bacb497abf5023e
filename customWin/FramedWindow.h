#pragma once

#include "core/app/ScreenRect.h"

#include <QRect>
#include <QTimer>
#include <QWidget>

#include <optional>

namespace orrery::window {

// A secondary window whose frame the program remembers: it opens again at the frame it had
// (title bar and rim included, as the person sees it) and says which frame to store
// whenever it comes to rest after a move or a resize (a drag sends a stream of changes; the
// frame is stored once they pause) and when it closes (a move just before closing has not
// come to rest).
class FramedWindow : public QWidget {
    Q_OBJECT
public:
    explicit FramedWindow(QWidget* parent);

    // Where the window opens the next time; empty for a window that has no frame yet.
    void setLastFrame(const ScreenRect& frame) { lastFrame_ = frame; }
    // Shows the window at its last frame, brought onto the screens (the first time beside
    // the main window's frame), and brings it to the front.
    void bringUp(const QRect& mainFrame);

signals:
    void frameToStore(const QRect& frame);

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // The desktop adds its title bar and rim only once a window is first on screen: until
    // then the window cannot know their size, and it takes its own size again when they come.
    void showAtFrame(const QRect& frame);
    void frameChanged();

    QTimer settle_;
    std::optional<QRect> wantedFrame_;
    ScreenRect lastFrame_;
};

} // namespace orrery::window
