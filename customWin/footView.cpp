#include "customWin/footView.h"

#include "customWin/PlanetPanel.h"
#include "customWin/mainView.h"

#include <QPainter>
#include <QPainterPath>

namespace orrery::window {

footView::footView(QWidget* parent) : QWidget(parent), panel_(new PlanetPanel(this)) {
    setObjectName(QStringLiteral("footView"));
}

void footView::resizeEvent(QResizeEvent*) {
    panel_->setGeometry(mainView::kSideMargin, kPanelGap, width() - 2 * mainView::kSideMargin,
                        height() - kPanelGap - kBottomBorder - kPanelGap / 2);
}

void footView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath panel;
    panel.addRoundedRect(QRectF(panel_->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
    painter.fillPath(panel, QColor(8, 12, 28, 150));
    painter.setPen(QColor(255, 255, 255, 28));
    painter.drawPath(panel);
    // The bottom border: a slightly darker band with a hairline above it.
    const QRect border(0, height() - kBottomBorder, width(), kBottomBorder);
    painter.fillRect(border, QColor(4, 6, 16, 120));
    painter.setPen(QColor(255, 255, 255, 18));
    painter.drawLine(border.topLeft(), border.topRight());
}

} // namespace orrery::window
