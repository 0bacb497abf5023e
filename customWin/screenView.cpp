#include "customWin/screenView.h"

#include "core/styles/AxisCross.h"
#include "core/styles/StyleImages.h"
#include "customWin/ColorConversion.h"
#include "imageio/QtImageWrap.h"

#include <QPainter>

namespace orrery::window {
screenView::screenView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("screenView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setColor(0);
}

void screenView::setColor(long index) {
    currentColor_ = index;
    changeBackColor(index);
}

void screenView::changeBackColor(long index) {
    // The same backdrop again (an opened package's, say): nothing to make, and nothing for
    // the scene to take in again.
    if (madeSize_.isValid() && index == madeColor_ && size() == madeSize_)
        return;
    madeColor_ = index;
    madeSize_ = size();
    // Made at the size in points and drawn at the device's scale without smoothing: the
    // checkerboard's 20-point squares stay crisp, solid colours stay solid.
    background_ = backgroundImage(index, width(), height());
    if (background_.isNull()) {
        myImage_ = QImage();
    } else {
        // The squares are counted from the bottom-left corner, where the scene has its
        // origin; the picture's rows run from the top.
        myImage_ = imageio::wrapImage(background_).mirrored(false, true);
    }
    picture_ = QImage();
    update();
    emit changed();
}

void screenView::refreshMe() {
    changeBackColor(currentColor_);
}

void screenView::hideAxes(bool show) {
    showAxes_ = show;
    picture_ = QImage();
    update();
    emit changed();
}

void screenView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintBackdrop(painter, rect());
}

void screenView::paintBackdrop(QPainter& painter, const QRect& area) const {
    const qreal scale = painter.device()->devicePixelRatioF();
    if (picture_.isNull() || picture_.deviceIndependentSize() != QSizeF(area.size()) ||
        picture_.devicePixelRatio() != scale) {
        picture_ = QImage(area.size() * scale, QImage::Format_ARGB32_Premultiplied);
        picture_.setDevicePixelRatio(scale);
        QPainter drawing(&picture_);
        drawBackdrop(drawing, area.size());
    }
    painter.drawImage(area, picture_);
}

void screenView::drawBackdrop(QPainter& painter, const QSize& size) const {
    const QRect area(QPoint(0, 0), size);
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (!myImage_.isNull())
        painter.drawImage(area, myImage_);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (showAxes_)
        drawAxes(painter, area.size());
    painter.restore();
}

void screenView::drawAxes(QPainter& painter, const QSize& size) const {
    const AxisCross cross = axisCross(size.width(), size.height());
    const auto flip = [&size](const AxisPoint& point) {
        return QPointF(point.x, size.height() - point.y);
    };
    painter.setRenderHint(QPainter::Antialiasing);
    const auto stroke = [&](const auto& segments, const Color& colour) {
        painter.setPen(QPen(toQColor(colour), AxisCross::lineWidth, Qt::SolidLine, Qt::RoundCap));
        for (const AxisSegment& segment : segments)
            painter.drawLine(flip(segment.from), flip(segment.to));
    };
    stroke(cross.xStrokes, cross.xColor);
    stroke(cross.yStrokes, cross.yColor);

    QFont font(QStringLiteral("Helvetica"));
    font.setPixelSize(static_cast<int>(AxisCross::labelPointSize));
    painter.setFont(font);
    for (const AxisLabel& label : cross.labels) {
        painter.setPen(toQColor(label.color));
        painter.drawText(flip(label.origin), QString::fromStdString(label.text));
    }
}

} // namespace orrery::window
