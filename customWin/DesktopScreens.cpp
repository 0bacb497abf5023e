#include "customWin/DesktopScreens.h"

#include <QGuiApplication>
#include <QScreen>

namespace orrery::window {

ScreenRect toScreenRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

QRect toQRect(const ScreenRect& rect) {
    return {rect.left, rect.top, rect.width, rect.height};
}

std::vector<ScreenRect> availableScreens() {
    std::vector<ScreenRect> screens;
    QScreen* primary = QGuiApplication::primaryScreen();
    if (primary != nullptr)
        screens.push_back(toScreenRect(primary->availableGeometry()));
    for (QScreen* screen : QGuiApplication::screens())
        if (screen != primary)
            screens.push_back(toScreenRect(screen->availableGeometry()));
    return screens;
}

} // namespace orrery::window
