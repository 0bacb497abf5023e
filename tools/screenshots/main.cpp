// Pictures of the real window in the states a person sees, for the user guide and for
// looking at the window as a user would. Run on an X server with a window manager:
//   tests/window/with-desktop build/release/tools/screenshots/orrery-screenshots OUT PACKAGE
#include "customWin/AppDelegate.h"
#include "customWin/AppStyle.h"
#include "customWin/ProgressSheet.h"
#include "customWin/Strings.h"
#include "customWin/WindowMain.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/PlanetTable.h"
#include "resources/translations/Translations.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <cstdio>

namespace {

using orrery::window::AppDelegate;

// Lets the window settle: events handled, the scene drawn, the compositor caught up.
void settle() {
    QTest::qWait(400);
}

void save(const QRect& area, const QString& path) {
    const QPixmap shot = QGuiApplication::primaryScreen()->grabWindow(0, area.x(), area.y(),
                                                                    area.width(), area.height());
    if (!shot.save(path))
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    else
        std::printf("%s\n", qPrintable(path));
}

// The window and whatever pops up over it.
void saveWindow(QWidget& window, const QString& path, int below = 0) {
    settle();
    QRect area = window.frameGeometry().adjusted(0, 0, 0, below);
    if (const QWidget* popup = QApplication::activePopupWidget())
        area |= popup->frameGeometry().adjusted(-8, -8, 8, 8);
    save(area, path);
}

// A planet made as a person makes one: the create button, a name, the sheet's button; then
// its cells typed into.
void createPlanet(AppDelegate& app, const QString& name,
                  const std::vector<std::pair<orrery::window::PlanetColumn, QString>>& cells) {
    // A planet's identity is the second it was made in: one a second keeps them apart.
    QTest::qWait(1000);
    app.openPlanetCreation();
    QTest::qWait(50);
    QLineEdit* field = app.window().findChild<QLineEdit*>(QStringLiteral("nameField3"));
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::qWait(50);
    app.tableView1().selectRow(app.state().planetArray.size() - 1);
    for (const auto& [column, value] : cells)
        app.textChange(column, value);
}

// Opens the package as a person would, by handing it to the window.
void openSystem(AppDelegate& app, const QString& package) {
    app.createNewSystem2();
    app.openFiles({package});
    if (!QTest::qWaitFor([&] { return app.state().projectpath == package.toStdString(); }, 20000))
        std::fprintf(stderr, "%s did not open\n", qPrintable(package));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s OUTPUT-FOLDER PACKAGE.kvx\n", argv[0]);
        return 1;
    }
    QTemporaryDir dataHome;
    // Settings and documents of its own: the pictures show a first start, and the panels
    // open in an empty documents folder.
    qputenv("XDG_DATA_HOME", dataHome.path().toLocal8Bit());
    qputenv("HOME", dataHome.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", dataHome.path().toLocal8Bit());
    orrery::window::useSceneSurfaceFormat();
    QApplication application(argc, argv);
    orrery::translations::install(application, QLocale());
    orrery::window::applyAppStyle(application);
    const QDir out(QString::fromLocal8Bit(argv[1]));
    QDir().mkpath(out.path());

    AppDelegate app;
    app.applicationWillFinishLaunching();
    QWidget& window = app.window();
    saveWindow(window, out.filePath(QStringLiteral("first-start.png")));

    using orrery::window::PlanetColumn;
    createPlanet(app, QStringLiteral("Sun"), {{PlanetColumn::x, "-260"}, {PlanetColumn::radius, "120"}});
    app.indexChange(PlanetColumn::surface, 5);
    createPlanet(app, QStringLiteral("Earth"), {{PlanetColumn::x, "40"}, {PlanetColumn::radius, "30"}});
    app.indexChange(PlanetColumn::surface, 3);
    createPlanet(app, QStringLiteral("Moon"), {{PlanetColumn::x, "95"}, {PlanetColumn::y, "30"}, {PlanetColumn::radius, "9"}});
    app.indexChange(PlanetColumn::style, 6);
    createPlanet(app, QStringLiteral("Mars"), {{PlanetColumn::x, "210"}, {PlanetColumn::y, "-60"}, {PlanetColumn::radius, "22"}});
    app.indexChange(PlanetColumn::style, 12);
    app.tableView1().selectRow(1);
    saveWindow(window, out.filePath(QStringLiteral("planet-table.png")));
    auto* styleButton = window.findChild<QToolButton*>(QStringLiteral("styleMetalPopupButton1_03"));
    styleButton->click();
    saveWindow(window, out.filePath(QStringLiteral("style-menu.png")), 500);
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    auto* surfaceButton = window.findChild<QToolButton*>(QStringLiteral("surfaceMetalPopupButton1_04"));
    surfaceButton->click();
    saveWindow(window, out.filePath(QStringLiteral("surface-menu.png")), 500);
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();

    app.show1bClicked();
    saveWindow(window, out.filePath(QStringLiteral("camera-popover.png")), 200);
    app.show1bClicked();
    app.show1Clicked();
    saveWindow(window, out.filePath(QStringLiteral("light-popover.png")), 200);
    app.show1Clicked();

    openSystem(app, QString::fromLocal8Bit(argv[2]));
    app.setSceneBackground(3);
    app.tableView1().selectRow(2);
    saveWindow(window, out.filePath(QStringLiteral("system-on-navy.png")));

    app.FileExport1();
    saveWindow(window, out.filePath(QStringLiteral("export-question.png")));
    QComboBox* formats = window.findChild<QComboBox*>(QStringLiteral("exportPopup1"));
    formats->setCurrentIndex(2);
    window.findChild<QCheckBox*>(QStringLiteral("includeButton1"))->setChecked(true);
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("sheetButton1000")),
                      Qt::LeftButton);
    QTest::qWait(900);
    saveWindow(window, out.filePath(QStringLiteral("export-panel.png")), 200);
    // The picture itself, written by the window as a person's export writes it.
    if (auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(out.filePath(QStringLiteral("exported.jpg")));
        panel->accept();
        settle();
    }
    auto* progress = new orrery::window::ProgressSheet(
        orrery::window::text("exportImageSavingNewImage"), window);
    progress->begin();
    saveWindow(window, out.filePath(QStringLiteral("progress-sheet.png")));
    progress->end();

    QMenu& scene = *app.menus().sceneMenu;
    QMenuBar& bar = *window.findChild<QMenuBar*>(QStringLiteral("menuBar"));
    scene.popup(bar.mapToGlobal(bar.actionGeometry(scene.menuAction()).bottomLeft()));
    settle();
    app.menus().sceneColors->popup(
        scene.mapToGlobal(scene.actionGeometry(app.menus().sceneColors->menuAction()).topRight()));
    saveWindow(window, out.filePath(QStringLiteral("scene-menu.png")));
    app.menus().sceneColors->close();
    scene.close();

    app.menus().helpUserguide->trigger();
    saveWindow(window, out.filePath(QStringLiteral("help-question.png")));
    if (QWidget* sheet = QApplication::activeModalWidget())
        sheet->close();

    app.openGradationWindow();
    settle();
    saveWindow(*window.findChild<QWidget*>(QStringLiteral("gradationWindow")),
               out.filePath(QStringLiteral("style-library.png")));
    window.findChild<QWidget*>(QStringLiteral("gradationWindow"))->close();

    app.openSearchWindow();
    QTest::keyClicks(window.findChild<QLineEdit*>(QStringLiteral("searchField")),
                     QStringLiteral("e"));
    saveWindow(*window.findChild<QWidget*>(QStringLiteral("searchWindow")),
               out.filePath(QStringLiteral("find-planet.png")));
    window.findChild<QWidget*>(QStringLiteral("searchWindow"))->close();

    app.fullWindowClicked();
    QTest::qWait(600);
    saveWindow(window, out.filePath(QStringLiteral("full-screen.png")));
    return 0;
}
