#pragma once

#include <QAbstractButton>

class QPainter;

namespace orrery::window {

// The check box of the shown column, drawn as three nested squares: a white rim (dark grey
// when the control is off), a grey well (darker while pressed) and, when checked, a green
// core in the same green whether the control is live or not.
void checkButtonStyle1_02(QPainter& painter, const QRectF& frame, bool enabled, bool pressed,
                          bool checked);

class checkButton1_02 : public QAbstractButton {
    Q_OBJECT
public:
    explicit checkButton1_02(QWidget* parent);
    QSize sizeHint() const override { return {20, 20}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orrery::window
