// The secondary windows, the style library and the find window: opened from the Window
// menu at the frame they had last time, their frames stored whenever they come to rest.
#include "core/app/ScreenFit.h"
#include "customWin/AppDelegate.h"
#include "customWin/DesktopScreens.h"
#include "customWin/gradationWindow.h"
#include "customWin/mainWindow.h"
#include "customWin/searchWindow.h"
#include "customWin/tableView1/PlanetTableModel.h"

namespace orrery::window {

void AppDelegate::openGradationWindow() {
    if (gradationWindow_ == nullptr) {
        gradationWindow_ = new gradationWindow(mainWindow_);
        rememberFrame(*gradationWindow_, state_.gradationFrame, state_.isGradationOpen, '1');
    }
    showSecondaryWindow(*gradationWindow_, state_.gradationFrame, state_.isGradationOpen);
}

void AppDelegate::openSearchWindow() {
    if (searchWindow_ == nullptr) {
        searchWindow_ = new searchWindow(
            [this] {
                std::vector<std::pair<QString, QString>> planets;
                for (const PlanetRecord& planet : state_.planetArray)
                    planets.emplace_back(QString::fromStdString(planet.tsecs),
                                         QString::fromStdString(planet.name));
                return planets;
            },
            mainWindow_);
        rememberFrame(*searchWindow_, state_.searchFrame, state_.isSearchOpen, '2');
        connect(searchWindow_, &searchWindow::planetChosen, this, &AppDelegate::hitText1Selected);
        // The list follows the planets while the window is open.
        const auto refresh = [this] {
            if (searchWindow_->isVisible())
                searchWindow_->refresh();
        };
        connect(planetModel_, &QAbstractItemModel::dataChanged, searchWindow_, refresh);
        connect(planetModel_, &QAbstractItemModel::modelReset, searchWindow_, refresh);
        connect(planetModel_, &PlanetTableModel::rowCountChanged, searchWindow_, refresh);
    }
    showSecondaryWindow(*searchWindow_, state_.searchFrame, state_.isSearchOpen);
}

// The frame is stored in table Windows whenever the window comes to rest and when it closes
// (a move just before closing has not come to rest), and kept for its next opening.
void AppDelegate::rememberFrame(FramedWindow& window, ScreenRect& lastFrame, bool& isOpen,
                                char windowNumber) {
    connect(&window, &FramedWindow::frameSettled, this,
            [this, &window, windowNumber] { storeFrame(window.frameGeometry(), windowNumber); });
    connect(&window, &FramedWindow::closing, this,
            [this, &window, &lastFrame, &isOpen, windowNumber] {
                lastFrame = toScreenRect(window.frameGeometry());
                storeFrame(window.frameGeometry(), windowNumber);
                isOpen = false;
            });
}

void AppDelegate::showSecondaryWindow(FramedWindow& window, const ScreenRect& lastFrame,
                                      bool& isOpen) {
    if (!window.isVisible())
        window.showAtFrame(toQRect(secondaryWindowFrame(
            lastFrame, {window.frameGeometry().width(), window.frameGeometry().height()},
            toScreenRect(mainWindow_->frameGeometry()), availableScreens())));
    isOpen = true;
    window.raise();
    window.activateWindow();
}

} // namespace orrery::window
