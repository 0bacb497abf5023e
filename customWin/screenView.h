#pragma once

#include "core/styles/Image.h"

#include <QImage>
#include <QWidget>

namespace orrery::window {

// The backdrop of the document area, directly behind the transparent scene: one of the
// background choices (a checkerboard for "transparent", white, black, three navy blues,
// and three colours that only code can choose) and, unless hidden, the axis cross at the
// centre. The background picture is made at the view's size and kept; after a change of
// size the owner calls refreshMe, until which the old picture is stretched.
class screenView : public QWidget {
    Q_OBJECT
public:
    explicit screenView(QWidget* parent);

    void setColor(long index);
    void changeBackColor(long index);
    void refreshMe();
    // The flag means "show the axes".
    void hideAxes(bool show);
    QSize getScreenSize() const { return size(); }

    long currentColor() const { return currentColor_; }
    bool showsAxes() const { return showAxes_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawAxes(QPainter& painter) const;

    long currentColor_ = 0;
    Image background_; // the pixels myImage_ wraps
    QImage myImage_;
    bool showAxes_ = true;
};

} // namespace orrery::window
