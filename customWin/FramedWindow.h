#pragma once

#include <QTimer>
#include <QWidget>

namespace orrery::window {

// A secondary window whose frame the program remembers: it tells when it has come to rest
// after a move or a resize (a drag sends a stream of changes; the frame is stored once
// they pause) and when it closes.
class FramedWindow : public QWidget {
    Q_OBJECT
public:
    explicit FramedWindow(QWidget* parent);

signals:
    void frameSettled();
    void closing();

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QTimer settle_;
};

} // namespace orrery::window
