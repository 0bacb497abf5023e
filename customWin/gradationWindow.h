#pragma once

#include "customWin/FramedWindow.h"

class QListWidget;

namespace orrery::window {

// The style library: every gradient of the catalogue as a swatch with its number, so that
// a person can see the styles side by side before choosing one for a planet.
class gradationWindow : public FramedWindow {
    Q_OBJECT
public:
    explicit gradationWindow(QWidget* parent);

private:
    QListWidget* swatches_;
};

} // namespace orrery::window
