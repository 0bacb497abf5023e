#include "tools/screenshots/Shots.h"

#include "customWin/mainWindow.h"
#include "customWin/tableView1/PlanetTable.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

#include <cstdio>

namespace orrery::screenshots {

void settle() {
    QTest::qWait(400);
}

QPixmap grab(const QRect& area) {
    return QGuiApplication::primaryScreen()->grabWindow(0, area.x(), area.y(), area.width(),
                                                        area.height());
}

void save(const QPixmap& picture, const QString& path) {
    if (!picture.save(path))
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    else
        std::printf("%s\n", qPrintable(path));
}

void save(const QRect& area, const QString& path) {
    save(grab(area), path);
}

void saveWindow(QWidget& window, const QString& path, int below) {
    settle();
    QRect area = window.frameGeometry().adjusted(0, 0, 0, below);
    if (const QWidget* popup = QApplication::activePopupWidget())
        area |= popup->frameGeometry().adjusted(-8, -8, 8, 8);
    save(area, path);
}

void createPlanet(window::AppDelegate& app, const QString& name,
                  const std::vector<std::pair<window::PlanetColumn, QString>>& cells) {
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

void createSmallSystem(window::AppDelegate& app) {
    using window::PlanetColumn;
    createPlanet(app, QStringLiteral("Sun"),
                 {{PlanetColumn::x, "-260"}, {PlanetColumn::radius, "120"}});
    app.indexChange(PlanetColumn::surface, 5);
    createPlanet(app, QStringLiteral("Earth"),
                 {{PlanetColumn::x, "40"}, {PlanetColumn::radius, "30"}});
    app.indexChange(PlanetColumn::surface, 3);
    createPlanet(app, QStringLiteral("Moon"),
                 {{PlanetColumn::x, "95"}, {PlanetColumn::y, "30"}, {PlanetColumn::radius, "9"}});
    app.indexChange(PlanetColumn::style, 6);
    createPlanet(
        app, QStringLiteral("Mars"),
        {{PlanetColumn::x, "210"}, {PlanetColumn::y, "-60"}, {PlanetColumn::radius, "22"}});
    app.indexChange(PlanetColumn::style, 12);
    app.tableView1().selectRow(1);
}

void openSystem(window::AppDelegate& app, const QString& package) {
    app.createNewSystem2();
    app.openFiles({package});
    if (!QTest::qWaitFor([&] { return app.state().projectpath == package.toStdString(); }, 20000))
        std::fprintf(stderr, "%s did not open\n", qPrintable(package));
}

QWidget* openPopup() {
    settle();
    return QApplication::activePopupWidget();
}

void closePopup() {
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

} // namespace orrery::screenshots
