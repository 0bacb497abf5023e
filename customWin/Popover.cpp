#include "customWin/Popover.h"

#include "customWin/AppStyle.h"

#include <QScreen>

namespace orrery::window {
namespace {

constexpr int kGap = 6;

} // namespace

Popover::Popover(QWidget* parent) : QFrame(parent, Qt::Popup) {
    setFrameShape(QFrame::StyledPanel);
    setStyleSheet(QStringLiteral("orrery--window--Popover { background: %1;"
                                 " border: 1px solid %2; border-radius: 8px; }")
                      .arg(QLatin1String(kFloatingFace), QLatin1String(kFloatingRim)));
}

void Popover::showBeside(const QWidget& button) {
    adjustSize();
    const QRect anchor(button.mapToGlobal(QPoint(0, 0)), button.size());
    QPoint place(anchor.right() + kGap, anchor.center().y() - height() / 2);
    if (const QScreen* screen = button.screen()) {
        const QRect room = screen->availableGeometry();
        // Where the right side has no room, the panel opens to the left of the button.
        if (place.x() + width() > room.right())
            place.setX(anchor.left() - kGap - width());
        place.setY(std::clamp(place.y(), room.top(), room.bottom() - height()));
    }
    move(place);
    show();
}

} // namespace orrery::window
