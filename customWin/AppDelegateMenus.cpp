// The menus: their actions, the Scene menu's check marks, the help questions and the
// saving of the menu state around sheets.
#include "core/app/MenuStatus.h"
#include "customWin/AppDelegate.h"
#include "customWin/HelpPages.h"
#include "customWin/Sheet.h"
#include "customWin/StandardEditActions.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "customWin/screenView.h"
#include "customWin/searchWindow.h"
#include "customWin/tableView1/PlanetTable.h"
#include "resources/Artwork.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDesktopServices>
#include <QMenu>
#include <QMessageBox>

namespace orrery::window {

void AppDelegate::connectMenuActions() {
    const MenuItems& m = menus_;
    connect(m.appQuit, &QAction::triggered, mainWindow_, &QWidget::close);
    connect(m.fileClose, &QAction::triggered, this, [] {
        if (QWidget* window = QApplication::activeWindow())
            window->close();
    });
    connect(m.appAbout, &QAction::triggered, this, &AppDelegate::showAbout);
    connect(m.sceneHideaxes, &QAction::triggered, this, &AppDelegate::hideaxesScene);
    for (std::size_t i = 0; i < m.sceneColorItems.size(); ++i)
        connect(m.sceneColorItems[i], &QAction::triggered, this,
                [this, i] { chooseBackground(static_cast<long>(i)); });
    connect(m.windowMinimize, &QAction::triggered, this, [] {
        if (QWidget* window = QApplication::activeWindow())
            window->showMinimized();
    });
    connect(m.windowZoom, &QAction::triggered, this, &AppDelegate::maximizeWindowClicked);
    connect(m.windowFullScreen, &QAction::triggered, this, &AppDelegate::fullWindowClicked);
    connect(m.windowGradation, &QAction::triggered, this, &AppDelegate::openGradationWindow);
    connect(m.windowSearch, &QAction::triggered, this, &AppDelegate::openSearchWindow);
    connect(m.windowBringfront, &QAction::triggered, this, [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible())
                window->raise();
    });
    connect(m.windowMain, &QAction::triggered, this, [this] {
        mainWindow_->raise();
        mainWindow_->activateWindow();
        menus_.windowMain->setChecked(true);
    });
    connect(m.windowMenu, &QMenu::aboutToShow, this,
            [this] { menus_.windowMain->setChecked(mainWindow_->isActiveWindow()); });
    connect(m.helpUserguide, &QAction::triggered, this, &AppDelegate::userguideHelp);
    connect(m.helpSupport, &QAction::triggered, this, &AppDelegate::supportHelp);
    connectStandardEditActions(m);
    connect(m.editFindfind, &QAction::triggered, this, &AppDelegate::openSearchWindow);
    connect(m.editFindnext, &QAction::triggered, this, [this] {
        openSearchWindow();
        searchWindow_->chooseNext(1);
    });
    connect(m.editFindprev, &QAction::triggered, this, [this] {
        openSearchWindow();
        searchWindow_->chooseNext(-1);
    });
    connect(m.editFinduseselect, &QAction::triggered, this, [this] {
        const QString selected = selectedTextOfFocus();
        openSearchWindow();
        if (!selected.isEmpty())
            searchWindow_->setSearchText(selected);
    });
    connect(m.editFindjump, &QAction::triggered, this, [this] {
        if (const auto row = tableView1_->selectedRow())
            tableView1_->scrollTo(planetModel_->index(static_cast<int>(*row), 0),
                                  QAbstractItemView::PositionAtCenter);
    });
    connect(m.editUndo, &QAction::triggered, this, &AppDelegate::undoClicked);
    connect(m.editRedo, &QAction::triggered, this, &AppDelegate::redoClicked);
    connect(m.planetCreate, &QAction::triggered, this, &AppDelegate::openPlanetCreation);
    connect(m.planetDelete, &QAction::triggered, this, &AppDelegate::deletPlanet1);
    connect(m.fileExport, &QAction::triggered, this, &AppDelegate::FileExport1);
    connect(m.fileExportAnimation, &QAction::triggered, this, &AppDelegate::FileExportAnimation);
    connect(m.fileExportScene, &QAction::triggered, this, &AppDelegate::exportScene);
    connect(m.filePrint, &QAction::triggered, this, &AppDelegate::printPlain);
    connect(m.filePrintsetup, &QAction::triggered, this, &AppDelegate::pageSetup);
    connect(m.appPreferences, &QAction::triggered, this, &AppDelegate::openPreferences);
}

// Jump to Selection is live exactly while a row is selected; a new or opened system clears
// the selection without a word, so its reset counts too.
void AppDelegate::followSelectionInFindMenu() {
    const auto follow = [this] {
        menus_.editFindjump->setEnabled(tableView1_->selectedRow().has_value());
    };
    connect(tableView1_, &PlanetTable::selectionChangedRows, this, follow);
    connect(planetModel_, &QAbstractItemModel::modelReset, this, follow);
}

void AppDelegate::saveMenuStatus() {
    const QList<QAction*> items = menus_.guardedItems();
    std::vector<bool> enabled;
    for (const QAction* item : items)
        enabled.push_back(item->isEnabled());
    const std::vector<bool> now = orrery::saveMenuStatus(state_.menuArray, enabled);
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i]->setEnabled(now[static_cast<std::size_t>(i)]);
    refreshHistoryItems();
}

// Restores what the last save recorded, once: a restore without a save before it (or a
// second one) changes nothing, so no stale state comes back.
void AppDelegate::loadMenuStatus() {
    if (state_.menuArray.empty())
        return;
    const QList<QAction*> items = menus_.guardedItems();
    const std::vector<bool> states =
        orrery::loadMenuStatus(state_.menuArray, static_cast<std::size_t>(items.size()));
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i]->setEnabled(states[static_cast<std::size_t>(i)]);
    state_.menuArray.clear();
    refreshHistoryItems();
}

// The argument of hideAxes means "show", the opposite of the new axesHiden.
void AppDelegate::hideaxesScene() {
    if (state_.axesHiden) {
        menus_.sceneHideaxes->setChecked(false);
        screenview().hideAxes(true);
        state_.axesHiden = false;
    } else {
        menus_.sceneHideaxes->setChecked(true);
        screenview().hideAxes(false);
        state_.axesHiden = true;
    }
}

void AppDelegate::chooseBackground(long index) {
    editor_->setBackground(index);
    setSceneBackground(index);
}

void AppDelegate::setSceneBackground(long index) {
    screenview().setColor(index);
    state_.currentBackground = index;
    sceneColorAllOff();
    menus_.sceneColorItems[static_cast<std::size_t>(index)]->setChecked(true);
}

void AppDelegate::sceneColorAllOff() {
    // The items form an exclusive group, which would keep one checked; it steps aside.
    QActionGroup* group = menus_.sceneColorItems[0]->actionGroup();
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    for (QAction* item : menus_.sceneColorItems)
        item->setChecked(false);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::Exclusive);
}

void AppDelegate::userguideHelp() {
    askToOpenPage(text("access userguide"), userGuideAddress());
}

void AppDelegate::supportHelp() {
    askToOpenPage(text("access website"), supportPageAddress());
}

// A help page opens in the browser only once the person said yes.
void AppDelegate::askToOpenPage(const QString& question, const QUrl& page) {
    saveMenuStatus();
    askOnSheet(*mainWindow_, question, QString(), {text("yes"), text("cancel")},
               [this, page](int response) {
                   if (response == kFirstButton)
                       QDesktopServices::openUrl(page);
                   loadMenuStatus();
               });
}

void AppDelegate::showAbout() {
    auto* about = new QMessageBox(mainWindow_);
    about->setObjectName(QStringLiteral("aboutSheet"));
    makeSheet(*about);
    about->setIconPixmap(artwork::applicationIcon().pixmap(96, 96));
    about->setText(QStringLiteral("<b>%1</b>").arg(appName_.toHtmlEscaped()));
    about->setInformativeText(textWith("aboutText", QString::fromStdString(state_.appVersion)));
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
    placeAsSheet(*about, *mainWindow_);
}

} // namespace orrery::window
