#pragma once

#include <QRect>
#include <QTimer>
#include <QWidget>

#include <optional>

namespace orrery::window {

// A secondary window whose frame the program remembers: it opens at a given frame (title
// bar and rim included, as the person sees it), tells when it has come to rest after a move
// or a resize (a drag sends a stream of changes; the frame is stored once they pause) and
// when it closes.
class FramedWindow : public QWidget {
    Q_OBJECT
public:
    explicit FramedWindow(QWidget* parent);

    // Shows the window with its frame exactly at `frame`. The desktop adds its title bar and
    // rim only once a window is first on screen: until then the window cannot know their
    // size, and it takes its own size again when they come.
    void showAtFrame(const QRect& frame);

signals:
    void frameSettled();
    void closing();

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void frameChanged();

    QTimer settle_;
    std::optional<QRect> wantedFrame_;
};

} // namespace orrery::window
