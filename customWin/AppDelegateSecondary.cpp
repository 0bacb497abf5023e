// The secondary windows, the style library and the find window: opened from the Window
// menu at the frame they had last time, their frames stored whenever they come to rest.
#include "customWin/AppDelegate.h"
#include "customWin/gradationWindow.h"
#include "customWin/mainWindow.h"
#include "customWin/searchWindow.h"
#include "customWin/tableView1/PlanetTableModel.h"

namespace orrery::window {
namespace {

// The last frame when there is one, else beside the main window's right edge.
void placeSecondary(QWidget& window, int width, int height, int left, int top,
                    const QWidget& main) {
    if (width > 0 && height > 0)
        window.setGeometry(left, top, width, height);
    else
        window.move(main.frameGeometry().right() - window.width() - 40,
                    main.frameGeometry().top() + 80);
}

} // namespace

void AppDelegate::openGradationWindow() {
    if (gradationWindow_ == nullptr) {
        gradationWindow_ = new gradationWindow(mainWindow_);
        placeSecondary(*gradationWindow_, state_.gWidth, state_.gHeight, state_.gLeft, state_.gTop,
                       *mainWindow_);
        connect(gradationWindow_, &FramedWindow::frameSettled, this,
                &AppDelegate::gradationSaveFrame);
        connect(gradationWindow_, &FramedWindow::closing, this, &AppDelegate::gradationWillClose);
    }
    state_.isGradationOpen = true;
    gradationWindow_->show();
    gradationWindow_->raise();
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
        placeSecondary(*searchWindow_, state_.sWidth, state_.sHeight, state_.sLeft, state_.sTop,
                       *mainWindow_);
        connect(searchWindow_, &FramedWindow::frameSettled, this, &AppDelegate::searchSaveFrame);
        connect(searchWindow_, &FramedWindow::closing, this, &AppDelegate::searchWillClose);
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
    state_.isSearchOpen = true;
    searchWindow_->show();
    searchWindow_->raise();
    searchWindow_->activateWindow();
}

void AppDelegate::gradationSaveFrame() {
    storeFrame(gradationWindow_->frameGeometry(), '1');
}

void AppDelegate::searchSaveFrame() {
    storeFrame(searchWindow_->frameGeometry(), '2');
}

void AppDelegate::keepFrame(const QWidget& window, int& width, int& height, int& left, int& top) {
    const QRect frame = window.frameGeometry();
    width = frame.width();
    height = frame.height();
    left = frame.left();
    top = frame.top();
}

void AppDelegate::gradationWillClose() {
    keepFrame(*gradationWindow_, state_.gWidth, state_.gHeight, state_.gLeft, state_.gTop);
    state_.isGradationOpen = false;
}

void AppDelegate::searchWillClose() {
    keepFrame(*searchWindow_, state_.sWidth, state_.sHeight, state_.sLeft, state_.sTop);
    state_.isSearchOpen = false;
}

} // namespace orrery::window
