#pragma once

#include <QList>

#include <array>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;
class QObject;

namespace orrery::window {

// Every menu and item of the menu bar, named as the controller knows them. Items keep
// their places and key equivalents here; their titles come from the strings resource
// (makeNSMenu) and their actions are connected by the controller.
struct MenuItems {
    QMenu* fileMenu = nullptr;
    QMenu* editMenu = nullptr;
    QMenu* planetMenu = nullptr;
    QMenu* sceneMenu = nullptr;
    QMenu* windowMenu = nullptr;
    QMenu* helpMenu = nullptr;

    QAction* appAbout = nullptr;
    QAction* appPreferences = nullptr;
    QAction* appQuit = nullptr;

    QAction* fileNew = nullptr;
    QAction* fileOpen = nullptr;
    QAction* fileClose = nullptr;
    QAction* fileSave = nullptr;
    QAction* fileSaveAs = nullptr;
    QAction* fileExport = nullptr;
    QAction* fileExportAnimation = nullptr; // enabled whenever fileExport is
    QAction* fileExportScene = nullptr;
    QAction* fileExportPlanets = nullptr;
    QAction* fileImportPlanets = nullptr;
    QAction* filePrintsetup = nullptr;
    QAction* filePrint = nullptr;

    QAction* editUndo = nullptr;
    QAction* editRedo = nullptr;
    QAction* editCut = nullptr;
    QAction* editCopy = nullptr;
    QAction* editPaste = nullptr;
    QAction* editPastematch = nullptr;
    QAction* editDelete = nullptr;
    QAction* editSelectall = nullptr;
    QMenu* editFind = nullptr;
    QAction* editFindfind = nullptr;
    QAction* editFindreplace = nullptr; // no replacing here: shown, never enabled
    QAction* editFindnext = nullptr;
    QAction* editFindprev = nullptr;
    QAction* editFinduseselect = nullptr;
    QAction* editFindjump = nullptr;
    QMenu* editTransform = nullptr;
    QAction* editTransupper = nullptr;
    QAction* editTranslower = nullptr;
    QAction* editTranscapital = nullptr;

    QAction* planetCreate = nullptr;
    QAction* planetDelete = nullptr;

    QAction* sceneHideaxes = nullptr;
    QMenu* sceneColors = nullptr;
    // Transparent, white, black and the three navy blues, by background number 0 to 5.
    std::array<QAction*, 6> sceneColorItems{};

    QAction* windowMinimize = nullptr;
    QAction* windowZoom = nullptr;
    QAction* windowFullScreen = nullptr;
    QAction* windowGradation = nullptr;
    QAction* windowSearch = nullptr;
    QAction* windowBringfront = nullptr;
    QAction* windowMain = nullptr; // the main window, listed under the program's name

    QAction* helpUserguide = nullptr;
    QAction* helpSupport = nullptr;

    // The nineteen items switched off while a sheet is up, in their saving order.
    QList<QAction*> guardedItems() const;
};

MenuItems buildMenuBar(QMenuBar& bar);

// Titles every menu and item from the strings resource; the about, quit and main-window
// items name the program.
void makeNSMenu(const MenuItems& items, const QString& appName);

} // namespace orrery::window
