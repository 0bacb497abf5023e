#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QSlider;

namespace orrery::window {

class PercentSlider;

// Under the export question: the format pop-up and whether the background colour goes
// under the picture.
class accessoryView1 : public QWidget {
    Q_OBJECT
public:
    explicit accessoryView1(QWidget* parent = nullptr);
    QComboBox& exportPopup1() { return *formats_; }
    QCheckBox& includeButton1() { return *include_; }

private:
    QComboBox* formats_;
    QCheckBox* include_;
};

// Under the save panel of JPEG and JPEG 2000: the compression slider and its per cent.
class accessoryView2 : public QWidget {
    Q_OBJECT
public:
    explicit accessoryView2(QWidget* parent = nullptr);
    QSlider& compressSlider2();

private:
    PercentSlider* compression_;
};

} // namespace orrery::window
