#include "customWin/MenuBar.h"

#include "customWin/Strings.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace orrery::window {
namespace {

QMenu* addMenu(QMenuBar& bar, const char* name) {
    QMenu* menu = bar.addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    return menu;
}

QMenu* addSubmenu(QMenu& parent, const char* name) {
    QMenu* menu = parent.addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    menu->menuAction()->setObjectName(QLatin1String(name));
    return menu;
}

QAction* addItem(QMenu& menu, const char* name, const QKeySequence& keys = {}) {
    QAction* action = menu.addAction(QString());
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    return action;
}

void buildFileMenu(QMenuBar& bar, MenuItems& m) {
    m.fileMenu = addMenu(bar, "fileMenu");
    m.fileNew = addItem(*m.fileMenu, "fileNew", QKeySequence::New);
    m.fileOpen = addItem(*m.fileMenu, "fileOpen", QKeySequence::Open);
    m.fileMenu->addSeparator();
    m.fileClose = addItem(*m.fileMenu, "fileClose", QKeySequence::Close);
    m.fileSave = addItem(*m.fileMenu, "fileSave", QKeySequence::Save);
    m.fileSaveAs = addItem(*m.fileMenu, "fileSaveAs", QKeySequence(QStringLiteral("Ctrl+Shift+S")));
    m.fileMenu->addSeparator();
    m.fileExport = addItem(*m.fileMenu, "fileExport", QKeySequence(QStringLiteral("Ctrl+E")));
    m.fileExportAnimation =
        addItem(*m.fileMenu, "fileExportAnimation", QKeySequence(QStringLiteral("Ctrl+Shift+E")));
    m.fileExportAnimation->setEnabled(m.fileExport->isEnabled());
    QObject::connect(m.fileExport, &QAction::enabledChanged, m.fileExportAnimation,
                     &QAction::setEnabled);
    m.fileExportScene = addItem(*m.fileMenu, "fileExportScene");
    m.fileExportPlanets = addItem(*m.fileMenu, "fileExportPlanets");
    m.fileImportPlanets = addItem(*m.fileMenu, "fileImportPlanets");
    m.fileMenu->addSeparator();
    m.filePrintsetup = addItem(*m.fileMenu, "filePrintsetup");
    m.filePrint = addItem(*m.fileMenu, "filePrint", QKeySequence::Print);
    m.fileMenu->addSeparator();
    m.appQuit = addItem(*m.fileMenu, "appQuit", QKeySequence(QStringLiteral("Ctrl+Q")));
    m.appQuit->setMenuRole(QAction::QuitRole);
}

void buildEditMenu(QMenuBar& bar, MenuItems& m) {
    m.editMenu = addMenu(bar, "editMenu");
    m.editUndo = addItem(*m.editMenu, "editUndo", QKeySequence::Undo);
    m.editRedo = addItem(*m.editMenu, "editRedo", QKeySequence::Redo);
    m.editMenu->addSeparator();
    m.editCut = addItem(*m.editMenu, "editCut", QKeySequence::Cut);
    m.editCopy = addItem(*m.editMenu, "editCopy", QKeySequence::Copy);
    m.editPaste = addItem(*m.editMenu, "editPaste", QKeySequence::Paste);
    m.editPastematch =
        addItem(*m.editMenu, "editPastematch", QKeySequence(QStringLiteral("Ctrl+Shift+V")));
    // Delete itself deletes the selected planet; this item removes selected text.
    m.editDelete = addItem(*m.editMenu, "editDelete");
    m.editSelectall = addItem(*m.editMenu, "editSelectall", QKeySequence::SelectAll);
    m.editMenu->addSeparator();
    m.editFind = addSubmenu(*m.editMenu, "editFind");
    m.editFindfind = addItem(*m.editFind, "editFindfind", QKeySequence::Find);
    // A planet is renamed in its row of the table, which Find takes the person to; there is
    // no text to replace across planets, and the item says so by staying grey.
    m.editFindreplace = addItem(*m.editFind, "editFindreplace");
    m.editFindreplace->setEnabled(false);
    m.editFindnext = addItem(*m.editFind, "editFindnext", QKeySequence::FindNext);
    m.editFindprev = addItem(*m.editFind, "editFindprev", QKeySequence::FindPrevious);
    m.editFinduseselect = addItem(*m.editFind, "editFinduseselect");
    m.editFindjump = addItem(*m.editFind, "editFindjump", QKeySequence(QStringLiteral("Ctrl+J")));
    m.editFindjump->setEnabled(false);
    m.editTransform = addSubmenu(*m.editMenu, "editTransform");
    m.editTransupper = addItem(*m.editTransform, "editTransupper");
    m.editTranslower = addItem(*m.editTransform, "editTranslower");
    m.editTranscapital = addItem(*m.editTransform, "editTranscapital");
    m.editMenu->addSeparator();
    m.appPreferences = addItem(*m.editMenu, "appPreferences", QKeySequence::Preferences);
    if (m.appPreferences->shortcut().isEmpty())
        m.appPreferences->setShortcut(QKeySequence(QStringLiteral("Ctrl+,")));
    m.appPreferences->setMenuRole(QAction::PreferencesRole);
}

void buildPlanetAndSceneMenus(QMenuBar& bar, MenuItems& m) {
    m.planetMenu = addMenu(bar, "planetMenu");
    m.planetCreate =
        addItem(*m.planetMenu, "planetCreate", QKeySequence(QStringLiteral("Ctrl+Shift+N")));
    m.planetDelete = addItem(*m.planetMenu, "planetDelete", QKeySequence::Delete);

    m.sceneMenu = addMenu(bar, "sceneMenu");
    m.sceneHideaxes =
        addItem(*m.sceneMenu, "sceneHideaxes", QKeySequence(QStringLiteral("Ctrl+Shift+H")));
    m.sceneHideaxes->setCheckable(true);
    m.sceneColors = addSubmenu(*m.sceneMenu, "sceneColors");
    auto* colours = new QActionGroup(m.sceneColors);
    const char* names[] = {"sceneColorTransparent", "sceneColorWhite", "sceneColorBlack",
                           "sceneColorDNB",         "sceneColorDDNB",  "sceneColorDDDNB"};
    for (std::size_t i = 0; i < m.sceneColorItems.size(); ++i) {
        QAction* item =
            addItem(*m.sceneColors, names[i], QKeySequence(QStringLiteral("Ctrl+%1").arg(i)));
        item->setCheckable(true);
        colours->addAction(item);
        m.sceneColorItems[i] = item;
    }
}

void buildWindowAndHelpMenus(QMenuBar& bar, MenuItems& m) {
    m.windowMenu = addMenu(bar, "windowMenu");
    m.windowMinimize =
        addItem(*m.windowMenu, "windowMinimize", QKeySequence(QStringLiteral("Ctrl+M")));
    m.windowZoom = addItem(*m.windowMenu, "windowZoom");
    m.windowFullScreen = addItem(*m.windowMenu, "windowFullScreen");
    // F11 everywhere, and the desktop's own key where that is another one (Ctrl+F11).
    QList<QKeySequence> fullScreenKeys{QKeySequence(Qt::Key_F11)};
    for (const QKeySequence& keys : QKeySequence::keyBindings(QKeySequence::FullScreen))
        if (!fullScreenKeys.contains(keys))
            fullScreenKeys.append(keys);
    m.windowFullScreen->setShortcuts(fullScreenKeys);
    m.windowFullScreen->setCheckable(true);
    m.windowMenu->addSeparator();
    m.windowGradation = addItem(*m.windowMenu, "windowGradation");
    m.windowSearch = addItem(*m.windowMenu, "windowSearch");
    m.windowMenu->addSeparator();
    m.windowBringfront = addItem(*m.windowMenu, "windowBringfront");
    m.windowMenu->addSeparator();
    m.windowMain = addItem(*m.windowMenu, "windowMain");
    m.windowMain->setCheckable(true);

    m.helpMenu = addMenu(bar, "helpMenu");
    m.helpUserguide = addItem(*m.helpMenu, "helpUserguide", QKeySequence::HelpContents);
    m.helpSupport = addItem(*m.helpMenu, "helpSupport");
    m.helpMenu->addSeparator();
    m.appAbout = addItem(*m.helpMenu, "appAbout");
    m.appAbout->setMenuRole(QAction::AboutRole);
}

} // namespace

QList<QAction*> MenuItems::guardedItems() const {
    return {appPreferences,
            helpSupport,
            helpUserguide,
            fileNew,
            fileOpen,
            fileClose,
            fileSave,
            fileSaveAs,
            fileExport,
            planetCreate,
            planetDelete,
            sceneHideaxes,
            sceneColors->menuAction(),
            sceneColorItems[0],
            sceneColorItems[1],
            sceneColorItems[2],
            sceneColorItems[3],
            sceneColorItems[4],
            sceneColorItems[5],
            fileExportScene,
            fileExportPlanets,
            fileImportPlanets};
}

MenuItems buildMenuBar(QMenuBar& bar) {
    MenuItems items;
    buildFileMenu(bar, items);
    buildEditMenu(bar, items);
    buildPlanetAndSceneMenus(bar, items);
    buildWindowAndHelpMenus(bar, items);
    return items;
}

void makeNSMenu(const MenuItems& m, const QString& appName) {
    // A menu's title names its item in the bar; the open menu is named after it too.
    const auto title = [](QMenu* menu, const char* key) {
        menu->setTitle(text(key));
        menu->setAccessibleName(menu->title());
    };
    title(m.fileMenu, "makeMenuFile");
    title(m.editMenu, "makeMenuEdit");
    title(m.planetMenu, "makeMenuPlanet");
    title(m.sceneMenu, "makeMenuScene");
    title(m.windowMenu, "makeMenuWindow");
    title(m.helpMenu, "makeMenuHelp");
    title(m.editFind, "makeMenuEditFind");
    title(m.editTransform, "makeMenuEditTransform");
    title(m.sceneColors, "makeMenuSceneColors");

    m.appAbout->setText(textWith("makeMenuAppAbout", appName));
    m.appQuit->setText(textWith("makeMenuAppQuit", appName));
    m.windowMain->setText(appName);
    const std::pair<QAction*, const char*> items[] = {
        {m.appPreferences, "makeMenuAppPreferences"},
        {m.fileNew, "makeMenuFileNew"},
        {m.fileOpen, "makeMenuFileOpen"},
        {m.fileClose, "makeMenuFileClose"},
        {m.fileSave, "makeMenuFileSave"},
        {m.fileSaveAs, "makeMenuFileSaveAs"},
        {m.fileExport, "makeMenuFileExport"},
        {m.fileExportAnimation, "makeMenuFileExportAnimation"},
        {m.fileExportScene, "makeMenuFileExportScene"},
        {m.fileExportPlanets, "makeMenuFileExportPlanets"},
        {m.fileImportPlanets, "makeMenuFileImportPlanets"},
        {m.filePrintsetup, "makeMenuFilePrintsetup"},
        {m.filePrint, "makeMenuFilePrint"},
        {m.editUndo, "makeMenuEditUndo"},
        {m.editRedo, "makeMenuEditRedo"},
        {m.editCut, "makeMenuEditCut"},
        {m.editCopy, "makeMenuEditCopy"},
        {m.editPaste, "makeMenuEditPaste"},
        {m.editPastematch, "makeMenuEditPastematch"},
        {m.editDelete, "makeMenuEditDelete"},
        {m.editSelectall, "makeMenuEditSelectall"},
        {m.editFindfind, "makeMenuEditFindFind"},
        {m.editFindreplace, "makeMenuEditFindReplace"},
        {m.editFindnext, "makeMenuEditFindNext"},
        {m.editFindprev, "makeMenuEditFindPrev"},
        {m.editFinduseselect, "makeMenuEditFindUseselect"},
        {m.editFindjump, "makeMenuEditFindJump"},
        {m.editTransupper, "makeMenuEditTransformUpp"},
        {m.editTranslower, "makeMenuEditTransformLow"},
        {m.editTranscapital, "makeMenuEditTransformCap"},
        {m.planetCreate, "makeMenuPlanetCreate"},
        {m.planetDelete, "makeMenuPlanetDelete"},
        {m.sceneHideaxes, "makeMenuSceneHideAxes"},
        {m.sceneColorItems[0], "makeMenuSceneColorTransparnet"},
        {m.sceneColorItems[1], "makeMenuSceneColorWhite"},
        {m.sceneColorItems[2], "makeMenuSceneColorBlack"},
        {m.sceneColorItems[3], "makeMenuSceneColorDarkNavyBlue"},
        {m.sceneColorItems[4], "makeMenuSceneColorDarkDarkNavyBlue"},
        {m.sceneColorItems[5], "makeMenuSceneColorDarkDarkDarkNavyBlue"},
        {m.windowMinimize, "makeMenuWindowMinimize"},
        {m.windowZoom, "makeMenuWindowZoom"},
        {m.windowFullScreen, "makeMenuViewFullScreen"},
        {m.windowGradation, "makeMenuWindowGradation"},
        {m.windowSearch, "makeMenuWindowSearch"},
        {m.windowBringfront, "makeMenuWindowBringfront"},
        {m.helpUserguide, "makeMenuHelpUserguide"},
        {m.helpSupport, "makeMenuHelpSupport"},
    };
    for (const auto& [item, key] : items)
        item->setText(text(key));
}

} // namespace orrery::window
