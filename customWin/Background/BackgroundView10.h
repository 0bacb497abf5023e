#pragma once

#include <QWidget>

namespace orrery::window {

// The decorative panel behind every control of the main window: a deep night-sky gradient
// with a faint glow near the top, like the light of a distant star.
class BackgroundView10 : public QWidget {
    Q_OBJECT
public:
    explicit BackgroundView10(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orrery::window
