// The pictures of the user guide: the window in the states the guide explains.
#include "customWin/AnimationPreview.h"
#include "customWin/ProgressSheet.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "customWin/tableView1/PlanetTable.h"
#include "tools/screenshots/Shots.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

namespace orrery::screenshots {
namespace {

// The Preferences sheet, one picture a tab.
void savePreferences(window::AppDelegate& app, const QDir& dir) {
    app.openPreferences();
    QWidget& window = app.window();
    auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabView1p"));
    const char* names[] = {"preferences-general.png", "preferences-folders.png",
                           "preferences-exporting.png"};
    for (int tab = 0; tab < 3; ++tab) {
        tabs->setCurrentIndex(tab);
        saveWindow(window, dir.filePath(QLatin1String(names[tab])));
    }
    app.close1pClicked();
}

// The introduction tour at its first, sixth and last page.
void saveTour(window::AppDelegate& app, const QDir& dir) {
    app.openIntroduction();
    auto* tour = app.window().findChild<QWidget*>(QStringLiteral("introductionWindow"));
    for (int page = 1; page <= 12; ++page) {
        if (page == 1 || page == 6 || page == 12)
            saveWindow(*tour, dir.filePath(QStringLiteral("tour-%1.png").arg(page)));
        app.forward7Clicked();
    }
    tour->close();
}

// The Export Animation sheet once its preview turns.
void saveAnimationSheet(window::AppDelegate& app, const QDir& dir) {
    app.menus().fileExportAnimation->trigger();
    settle();
    auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    auto* preview = sheet->findChild<window::AnimationPreview*>(QStringLiteral("animationPreview"));
    while (preview->frameCount() == 0)
        QTest::qWait(50);
    saveWindow(app.window(), dir.filePath(QStringLiteral("animation-sheet.png")), 60);
    sheet->reject();
    settle();
}

} // namespace

void makeGuidePictures(window::AppDelegate& app, const QString& out, const QString& package) {
    const QDir dir(out);
    QWidget& window = app.window();
    saveWindow(window, dir.filePath(QStringLiteral("first-start.png")));

    createSmallSystem(app);
    saveWindow(window, dir.filePath(QStringLiteral("planet-table.png")));
    auto* styleButton = window.findChild<QToolButton*>(QStringLiteral("styleMetalPopupButton1_03"));
    styleButton->click();
    saveWindow(window, dir.filePath(QStringLiteral("style-menu.png")), 500);
    closePopup();
    auto* surfaceButton =
        window.findChild<QToolButton*>(QStringLiteral("surfaceMetalPopupButton1_04"));
    surfaceButton->click();
    saveWindow(window, dir.filePath(QStringLiteral("surface-menu.png")), 500);
    closePopup();

    app.show1bClicked();
    saveWindow(window, dir.filePath(QStringLiteral("camera-popover.png")), 200);
    app.show1bClicked();
    app.show1Clicked();
    saveWindow(window, dir.filePath(QStringLiteral("light-popover.png")), 200);
    app.show1Clicked();

    openSystem(app, package);
    app.chooseBackground(3);
    app.tableView1().selectRow(2);
    saveWindow(window, dir.filePath(QStringLiteral("system-on-navy.png")));

    app.FileExport1();
    saveWindow(window, dir.filePath(QStringLiteral("export-question.png")));
    QComboBox* formats = window.findChild<QComboBox*>(QStringLiteral("exportPopup1"));
    formats->setCurrentIndex(2);
    window.findChild<QCheckBox*>(QStringLiteral("includeButton1"))->setChecked(true);
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("sheetButton1000")),
                      Qt::LeftButton);
    QTest::qWait(900);
    saveWindow(window, dir.filePath(QStringLiteral("export-panel.png")), 200);
    // The picture itself, written by the window as a person's export writes it.
    if (auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(dir.filePath(QStringLiteral("exported.jpg")));
        panel->accept();
        settle();
    }
    auto* progress = new window::ProgressSheet(window::text("exportImageSavingNewImage"), window);
    progress->begin();
    saveWindow(window, dir.filePath(QStringLiteral("progress-sheet.png")));
    progress->end();
    saveAnimationSheet(app, dir);

    QMenuBar& bar = *window.findChild<QMenuBar*>(QStringLiteral("menuBar"));
    QMenu& file = *app.menus().fileMenu;
    file.popup(bar.mapToGlobal(bar.actionGeometry(file.menuAction()).bottomLeft()));
    settle();
    saveWindow(window, dir.filePath(QStringLiteral("file-menu.png")));
    file.close();

    QMenu& scene = *app.menus().sceneMenu;
    scene.popup(bar.mapToGlobal(bar.actionGeometry(scene.menuAction()).bottomLeft()));
    settle();
    app.menus().sceneColors->popup(
        scene.mapToGlobal(scene.actionGeometry(app.menus().sceneColors->menuAction()).topRight()));
    saveWindow(window, dir.filePath(QStringLiteral("scene-menu.png")));
    app.menus().sceneColors->close();
    scene.close();

    app.menus().helpUserguide->trigger();
    saveWindow(window, dir.filePath(QStringLiteral("help-question.png")));
    if (QWidget* sheet = QApplication::activeModalWidget())
        sheet->close();

    app.openGradationWindow();
    settle();
    saveWindow(*window.findChild<QWidget*>(QStringLiteral("gradationWindow")),
               dir.filePath(QStringLiteral("style-library.png")));
    window.findChild<QWidget*>(QStringLiteral("gradationWindow"))->close();

    app.openSearchWindow();
    QTest::keyClicks(window.findChild<QLineEdit*>(QStringLiteral("searchField")),
                     QStringLiteral("e"));
    saveWindow(*window.findChild<QWidget*>(QStringLiteral("searchWindow")),
               dir.filePath(QStringLiteral("find-planet.png")));
    window.findChild<QWidget*>(QStringLiteral("searchWindow"))->close();

    savePreferences(app, dir);
    saveTour(app, dir);

    app.fullWindowClicked();
    QTest::qWait(600);
    saveWindow(window, dir.filePath(QStringLiteral("full-screen.png")));
}

} // namespace orrery::screenshots
