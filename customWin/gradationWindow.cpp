#include "customWin/gradationWindow.h"

#include "core/styles/GradientLibrary.h"
#include "customWin/Strings.h"
#include "customWin/tableView1/Swatches.h"
#include "imageio/QtImageWrap.h"

#include <QListWidget>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace orrery::window {
namespace {

constexpr int kSwatch = 64;

// A swatch drawn at the screen's scale, with rounded corners and a hairline rim.
QIcon swatchIcon(std::int64_t number, qreal scale) {
    const int side = static_cast<int>(kSwatch * scale);
    const Image gradient = styleSwatchImage(number, side);
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    if (!gradient.isNull()) {
        const QImage wrapped = imageio::wrapImage(gradient);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath shape;
        shape.addRoundedRect(QRectF(0.5, 0.5, side - 1.0, side - 1.0), 6 * scale, 6 * scale);
        painter.setClipPath(shape);
        painter.drawImage(0, 0, wrapped);
        painter.setClipping(false);
        painter.setPen(QPen(QColor(255, 255, 255, 60), scale));
        painter.drawPath(shape);
    }
    pixmap.setDevicePixelRatio(scale);
    return QIcon(pixmap);
}

} // namespace

gradationWindow::gradationWindow(QWidget* parent)
    : FramedWindow(parent), swatches_(new QListWidget(this)) {
    setObjectName(QStringLiteral("gradationWindow"));
    setWindowTitle(text("gradationWindowTitle"));
    swatches_->setObjectName(QStringLiteral("gradationList"));
    swatches_->setAccessibleName(text("gradationWindowTitle"));
    swatches_->setViewMode(QListView::IconMode);
    swatches_->setResizeMode(QListView::Adjust);
    swatches_->setMovement(QListView::Static);
    swatches_->setUniformItemSizes(true);
    swatches_->setIconSize(QSize(kSwatch, kSwatch));
    swatches_->setGridSize(QSize(kSwatch + 22, kSwatch + 28));
    swatches_->setSpacing(4);
    swatches_->setSelectionMode(QAbstractItemView::SingleSelection);
    const qreal scale = devicePixelRatioF();
    for (std::int64_t number = 0; number < gradientLibrary::kCatalogueSize; ++number) {
        auto* item =
            new QListWidgetItem(swatchIcon(number, scale), QString::number(number), swatches_);
        item->setToolTip(textWith("gradientNumber", QString::number(number)));
        item->setTextAlignment(Qt::AlignHCenter);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(swatches_);
    resize(560, 480);
}

} // namespace orrery::window
