#include "tools/surfaces/ContactSheet.h"

#include "tools/surfaces/PngFile.h"

#include <QFont>
#include <QPainter>

namespace orrery::surfaces {

QImage contactSheet(const std::vector<Image>& thumbnails, const QStringList& labels) {
    constexpr int kColumns = 6;
    constexpr int kGap = 12;
    constexpr int kLabelHeight = 22;
    int cellWidth = 0;
    int cellHeight = 0;
    for (const Image& t : thumbnails) {
        cellWidth = std::max(cellWidth, t.width);
        cellHeight = std::max(cellHeight, t.height);
    }
    const int count = static_cast<int>(thumbnails.size());
    const int rows = (count + kColumns - 1) / kColumns;
    QImage sheet(kGap + kColumns * (cellWidth + kGap),
                 kGap + rows * (cellHeight + kLabelHeight + kGap), QImage::Format_RGB32);
    sheet.fill(QColor(24, 24, 28));

    QPainter painter(&sheet);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    painter.setFont(font);
    painter.setPen(QColor(220, 220, 225));
    for (int i = 0; i < count; ++i) {
        const Image& t = thumbnails[static_cast<std::size_t>(i)];
        const int x = kGap + (i % kColumns) * (cellWidth + kGap);
        const int y = kGap + (i / kColumns) * (cellHeight + kLabelHeight + kGap);
        if (!t.isNull())
            painter.drawImage(x, y, imageView(t));
        if (i < labels.size())
            painter.drawText(QRect(x, y + cellHeight, cellWidth, kLabelHeight),
                             Qt::AlignLeft | Qt::AlignVCenter, labels[i]);
    }
    return sheet;
}

} // namespace orrery::surfaces
