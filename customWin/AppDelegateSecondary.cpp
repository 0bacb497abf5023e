// The secondary windows, the style library and the find window: opened from the Window
// menu at the frame they had last time, their frames stored whenever they come to rest.
#include "customWin/AppDelegate.h"
#include "customWin/gradationWindow.h"
#include "customWin/mainWindow.h"
#include "customWin/searchWindow.h"
#include "customWin/tableView1/PlanetTableModel.h"

namespace orrery::window {

void AppDelegate::openGradationWindow() {
    if (gradationWindow_ == nullptr) {
        gradationWindow_ = new gradationWindow(mainWindow_);
        keepFrame(*gradationWindow_, state_.gradationFrame, '1');
    }
    gradationWindow_->bringUp(mainWindow_->frameGeometry());
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
        keepFrame(*searchWindow_, state_.searchFrame, '2');
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
    searchWindow_->bringUp(mainWindow_->frameGeometry());
}

// The window opens first at the frame stored at start, later where it last closed; its
// frame goes into its row of table Windows whenever the window says so.
void AppDelegate::keepFrame(FramedWindow& window, const ScreenRect& storedFrame,
                            char windowNumber) {
    window.setLastFrame(storedFrame);
    connect(&window, &FramedWindow::frameToStore, this,
            [this, windowNumber](const QRect& frame) { storeFrame(frame, windowNumber); });
}

} // namespace orrery::window
