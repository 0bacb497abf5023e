#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QMenuBar;

namespace orrery::window {

// The strip under the title: the menus on the left, the document size on the right.
class headerView : public QWidget {
    Q_OBJECT
public:
    explicit headerView(QWidget* parent);

    QMenuBar& menuBar() { return *menuBar_; }
    QLineEdit& widthField1() { return *width_; }
    QLineEdit& heightField1() { return *height_; }
    // The texts of the size label and of the sign between the two fields.
    void setTexts(const QString& sizeLabel, const QString& times);
    // Says how large the picture is shown when the window cannot show it at its size;
    // empty when it can.
    void setScaleNote(const QString& note);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QMenuBar* menuBar_;
    QLabel* scaleNote_;
    QLabel* sizeLabel_;
    QLineEdit* width_;
    QLabel* times_;
    QLineEdit* height_;
};

} // namespace orrery::window
