#pragma once

#include "customWin/Popover.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace orrery::window {

// The camera popover (popOver5): the x and y field of view, the position, the
// orthographic and z-range switches, and the button that puts the camera back.
class CameraPopover : public Popover {
    Q_OBJECT
public:
    explicit CameraPopover(QWidget* parent);

    QLineEdit& xfovField5() { return *xfov_; }
    QLineEdit& yfovField5() { return *yfov_; }
    QLineEdit& xField5() { return *x_; }
    QLineEdit& yField5() { return *y_; }
    QLineEdit& zField5() { return *z_; }
    QCheckBox& orthoButton5() { return *ortho_; }
    QCheckBox& adjustZButton5() { return *adjustZ_; }
    QPushButton& defaultButton5() { return *default_; }

private:
    QLineEdit* xfov_;
    QLineEdit* yfov_;
    QLineEdit* x_;
    QLineEdit* y_;
    QLineEdit* z_;
    QCheckBox* ortho_;
    QCheckBox* adjustZ_;
    QPushButton* default_;
};

// The light popover (popOver4): the light's colour and position, and the button that puts
// the light back.
class colorWell1_09;
class LightPopover : public Popover {
    Q_OBJECT
public:
    explicit LightPopover(QWidget* parent);

    colorWell1_09& colorWell4() { return *color_; }
    QLineEdit& xField4() { return *x_; }
    QLineEdit& yField4() { return *y_; }
    QLineEdit& zField4() { return *z_; }
    QPushButton& defaultButton4() { return *default_; }

private:
    colorWell1_09* color_;
    QLineEdit* x_;
    QLineEdit* y_;
    QLineEdit* z_;
    QPushButton* default_;
};

} // namespace orrery::window
