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

    long currentColor() const { return currentColor_; }
    bool showsAxes() const { return showAxes_; }

    // Paints the backdrop into an area of the view's size: here, and under the scene. The
    // picture is drawn once for each look and size and then only copied.
    void paintBackdrop(QPainter& painter, const QRect& area) const;

signals:
    // The backdrop looks different: whatever shows it draws again.
    void changed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawBackdrop(QPainter& painter, const QSize& size) const;
    void drawAxes(QPainter& painter, const QSize& size) const;

    long currentColor_ = 0;
    // The colour and size the backdrop was last made for; none made yet while invalid.
    long madeColor_ = 0;
    QSize madeSize_;
    Image background_; // the pixels myImage_ wraps
    QImage myImage_;
    bool showAxes_ = true;
    mutable QImage picture_; // the backdrop as last drawn, at a device's scale
};

} // namespace orrery::window
