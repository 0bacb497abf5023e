#include "customWin/AppDelegate.h"

#include "core/app/AppPaths.h"
#include "core/app/DocumentArea.h"
#include "core/app/ScreenFit.h"
#include "core/model/TextNumber.h"
#include "core/settings/SettingsReaders.h"
#include "customWin/DesktopScreens.h"
#include "customWin/MenuKeys.h"
#include "customWin/PlanetCreationSheet.h"
#include "customWin/PlanetPanel.h"
#include "customWin/Strings.h"
#include "customWin/gradationWindow.h"
#include "customWin/headerView.h"
#include "customWin/introduction/introductionWindow.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"

#include "customWin/preferences/accessoryView1p.h"
#include "customWin/sceneView.h"
#include "customWin/screenView.h"
#include "customWin/searchWindow.h"
#include "customWin/tableView1/PlanetTable.h"
#include <QCheckBox>
#include <QMenuBar>
#include <QPushButton>

#include <QLineEdit>
#include <QPrinter>

#include <filesystem>

namespace orrery::window {

AppDelegate::AppDelegate()
    : appName_(QString::fromStdString(appNameFromExecutable())),
      settings_(AppPaths::inFolder(userDataFolder() / appNameFromExecutable())),
      mainWindow_(new mainWindow()) {
    // Start-up step 1: empty lists, full screen on offer.
    state_.canEnterFull = true;
    state_.appName = appName_.toStdString();
}

AppDelegate::~AppDelegate() {
    // The creation sheet's contents live outside any window between openings.
    if (accessoryView3_ != nullptr && accessoryView3_->parent() == nullptr)
        delete accessoryView3_;
    if (accessoryView1p_ != nullptr && accessoryView1p_->parent() == nullptr)
        delete accessoryView1p_;
    delete introductionWindow_;
    delete gradationWindow_;
    delete searchWindow_;
    delete mainWindow_;
}

sceneView& AppDelegate::sceneview() {
    return mainWindow_->content().documentArea().scene();
}

screenView& AppDelegate::screenview() {
    return mainWindow_->content().documentArea().backdrop();
}

void AppDelegate::applicationWillFinishLaunching() {
    screenOptions();
    mainWindow_->show();
    // The tour follows the window's first frame, so that the window does not wait for it.
    if (!generalSwitch(settings_.checkboxArray, GeneralSwitch::skipTour))
        connect(&sceneview(), &sceneView::framePainted, this, &AppDelegate::openIntroduction,
                Qt::SingleShotConnection);
    makeNSControls();
    state_.appVersion = ORRERY_VERSION;
    registerWindowObservers();
    buildTitleBar();
    // The picture starts at the size of the window's document area.
    const QSize area = mainWindow_->content().documentArea().size();
    shownDocument_ = {area.width() - kDocumentFrame, area.height() - kDocumentFrame};
    editor_->resetDocument(
        {formatFixed(shownDocument_.width, 0), formatFixed(shownDocument_.height, 0), 0});
    showDocumentFields();
    fitDocument();
    refreshViews();
    state_.currentBackground = 0;
    state_.currentPage = 1;
    menus_.sceneColorItems[0]->setChecked(true);
    state_.lightColor = kWhite;
    // The keyboard starts in the planet table, not in a size field.
    tableView1().setFocus();
}

void AppDelegate::screenOptions() {
    // The folder and the three databases exist before any window shows.
    runSettingsStartup(settings_);
    populateDB0();
}

void AppDelegate::populateDB0() {
    const bool windowsFileExists = std::filesystem::exists(settings_.paths().filePath0);
    const WindowPlacement placement =
        mainWindowPlacement(windowsFileExists, settings_.windowArray,
                            generalSwitch(settings_.checkboxArray, GeneralSwitch::centreAtStart));
    placeMainWindow(placement);
}

void AppDelegate::placeMainWindow(const WindowPlacement& placement) {
    mainWindow_->beginOwnResize();
    const std::vector<ScreenRect> screens = availableScreens();
    const ScreenRect primary = screens.empty() ? ScreenRect{0, 0, 1920, 1080} : screens.front();
    if (placement.kind == WindowPlacement::Kind::Stored) {
        const ScreenRect& stored = placement.main;
        const QSize size = QSize(stored.width, stored.height)
                               .expandedTo(mainWindow_->minimumSize())
                               .boundedTo(mainWindow_->maximumSize());
        const ScreenRect frame =
            bringOntoScreens({stored.left, stored.top, size.width(), size.height()}, screens);
        mainWindow_->setGeometry(toQRect(frame));
        state_.gradationFrame = placement.gradation;
        state_.searchFrame = placement.search;
        return;
    }
    const PixelSize window = windowSizeForDocument(firstDocumentSize(primary));
    mainWindow_->setGeometry(toQRect(centredOn(primary, window)));
    if (placement.kind == WindowPlacement::Kind::CentreAndStore)
        saveWindowFrame();
}

void AppDelegate::makeNSControls() {
    menus_ = buildMenuBar(mainWindow_->content().header().menuBar());
    routeMenuKeys(*this, mainWindow_->content().header().menuBar());
    makeNSMenu(menus_, appName_);
    connectMenuActions();
    buildPlanetPanel();
    followSelectionInFindMenu();
    buildPopovers();
    connectDocumentActions();
    connectRowActions();
    mainWindow_->content().header().setTexts(text("documentSizeLabel"), text("documentSizeTimes"));
    QLineEdit& width = mainWindow_->content().header().widthField1();
    QLineEdit& height = mainWindow_->content().header().heightField1();
    width.setAccessibleName(text("accessibleWidthField"));
    height.setAccessibleName(text("accessibleHeightField"));
    setReadingTabOrder();
    sceneview().setAccessibleName(text("accessibleSceneView"));
    screenview().setAccessibleName(text("accessibleBackdrop"));
    mainWindow_->setWindowTitle(appName_);
    mainWindow_->setAccessibleName(appName_);
}

// Tab runs through the window as it reads: the document size, the planet panel's buttons
// from left to right, then the table.
void AppDelegate::setReadingTabOrder() {
    headerView& header = mainWindow_->content().header();
    PlanetPanel& panel = planetPanel();
    QWidget* const order[] = {
        &header.widthField1(),        &header.heightField1(), &panel.createPlanetButton1(),
        &panel.deletePlanetButton1(), &panel.allButton1(),    &panel.cameraButton(),
        &panel.lightButton(),         &panel.exportButton1(), tableView1_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void AppDelegate::saveWindowFrame() {
    storeFrame(mainWindow_->frameGeometry(), '0');
}

// Table Windows holds each frame as Width, Height, Left and Top with the window's number.
void AppDelegate::storeFrame(const QRect& frame, char windowNumber) {
    const std::pair<int, const char*> values[] = {{frame.width(), "Width"},
                                                  {frame.height(), "Height"},
                                                  {frame.left(), "Left"},
                                                  {frame.top(), "Top"}};
    for (const auto& [value, field] : values)
        settings_.saveData0(formatF(value), std::string(field) + windowNumber);
}

} // namespace orrery::window
