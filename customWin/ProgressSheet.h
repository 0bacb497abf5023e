#pragma once

#include <QDialog>
#include <QTimer>

class QLabel;

namespace orrery::window {

// A small wheel that turns while work goes on elsewhere.
class Spinner : public QWidget {
    Q_OBJECT
public:
    explicit Spinner(QWidget* parent);
    void start();
    void stop();
    int turns() const { return steps_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer timer_;
    int steps_ = 0;
};

// The progress sheet shown while a package is read or written or a picture is exported:
// 400 x 114 with its spinner and one line saying what is going on.
class ProgressSheet : public QDialog {
    Q_OBJECT
public:
    ProgressSheet(const QString& label, QWidget& window);
    void begin();
    void end();

private:
    Spinner* spinner_;
    QLabel* label_;
};

} // namespace orrery::window
