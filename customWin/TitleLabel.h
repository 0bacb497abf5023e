#pragma once

#include <QLabel>

namespace orrery::window {

// The title in the window's own title bar. The window has no frame from the desktop, so
// dragging the title moves the window (through the desktop's own move, which snaps and
// crosses screens as users expect) and a double click zooms it.
class TitleLabel : public QLabel {
    Q_OBJECT
public:
    explicit TitleLabel(QWidget* parent);

signals:
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace orrery::window
