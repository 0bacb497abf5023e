#pragma once

#include <QFrame>

namespace orrery::window {

// A small panel that pops up beside the right edge of the button that opened it and
// closes by itself on a click anywhere else.
class Popover : public QFrame {
    Q_OBJECT
public:
    explicit Popover(QWidget* parent);

    // Beside the button's right edge, level with it, kept on the button's screen.
    void showBeside(const QWidget& button);
};

} // namespace orrery::window
