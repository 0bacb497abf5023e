#pragma once

#include <QWidget>

class QLabel;
class QSlider;

namespace orrery::window {

// A compression slider from 0 to 100 with the per cent it stands at beside it ("85%"),
// updated on every move.
class PercentSlider : public QWidget {
    Q_OBJECT
public:
    PercentSlider(const QString& sliderName, const QString& labelName, QWidget* parent = nullptr);
    QSlider& slider() { return *slider_; }
    QLabel& percent() { return *percent_; }
    // Sets the slider and its label, also when the slider already stands there.
    void setValue(int percent);

private:
    void showPercent(int percent);

    QSlider* slider_;
    QLabel* percent_;
};

} // namespace orrery::window
