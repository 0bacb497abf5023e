#include "core/settings/Settings.h"
#include "customWin/PlanetCreationSheet.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/PlanetTable.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace orrery::window::testing {
namespace {} // namespace

class PlanetsTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void theCreationSheetTakesANameWithItsSpaces() {
        mainWindow& window = app().window();
        QTest::mouseClick(&child<QPushButton>(window, "createPlanetButton1"), Qt::LeftButton);
        QWidget* sheet = nullptr;
        QVERIFY((sheet = waitForTopLevel("planetAddSheet")) != nullptr);
        QCOMPARE(sheet->size(), QSize(340, 168));
        auto& name = child<QLineEdit>(*sheet, "nameField3");
        auto& create = child<QPushButton>(*sheet, "createButton3");
        QVERIFY(!create.isEnabled());
        QTest::keyClicks(&name, QStringLiteral("   "));
        QVERIFY(!create.isEnabled());
        name.clear();
        QTest::keyClicks(&name, QStringLiteral(" a "));
        QVERIFY(create.isEnabled());
        QTest::mouseClick(&create, Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("planetAddSheet") == nullptr);

        const PlanetList& planets = app().state().planetArray;
        QCOMPARE(planets.size(), std::size_t(1));
        QCOMPARE(planets.at(0).name, std::string(" a "));
        QCOMPARE(planets.at(0).color, kPureBlue);
        QCOMPARE(app().tableView1().model()->rowCount(), 1);
        QVERIFY(child<QCheckBox>(window, "allButton1").isEnabled());
        QVERIFY(app().menus().fileExport->isEnabled());
        QVERIFY(!child<QPushButton>(window, "deletePlanetButton1").isEnabled());
        // The menus are back as they were before the sheet.
        QVERIFY(app().menus().planetCreate->isEnabled());
    }

    void cellsStoreOnlyValuesThatPassAndKeepTheFocus() {
        createPlanets(1);
        PlanetTable& table = app().tableView1();
        table.selectRow(0);
        QVERIFY(child<QPushButton>(app().window(), "deletePlanetButton1").isEnabled());
        auto* radius = qobject_cast<QLineEdit*>(table.control(PlanetColumn::radius));
        QVERIFY(radius != nullptr);
        typeInto(*radius, "0.09", Qt::Key_Return);
        QVERIFY(child<QLabel>(app().window(), "statusLabel1").isVisible());
        QCOMPARE(record(0).radius, std::string("24"));
        QCOMPARE(radius->text(), QStringLiteral("0.09"));
        typeInto(*radius, "0.1", Qt::Key_Return);
        QCOMPARE(record(0).radius, std::string("0.1"));
        // The row stays selected, but Delete is off until the selection changes.
        QCOMPARE(table.selectedRow(), std::optional<std::size_t>(0));
        QVERIFY(!child<QPushButton>(app().window(), "deletePlanetButton1").isEnabled());

        auto* name = qobject_cast<QLineEdit*>(table.control(PlanetColumn::name));
        typeInto(*name, "Vesta", Qt::Key_Tab);
        QCOMPARE(record(0).name, std::string("Vesta"));
        QCOMPARE(QApplication::focusWidget(), name);
        QTRY_VERIFY(!child<QLabel>(app().window(), "statusLabel1").isVisible());
    }

    void onlyTheSelectedRowHasLiveControls() {
        createPlanets(2);
        PlanetTable& table = app().tableView1();
        table.selectRow(0);
        const QRect stateCell =
            table.visualRect(table.model()->index(1, static_cast<int>(PlanetColumn::state)));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, stateCell.center());
        QCOMPARE(table.selectedRow(), std::optional<std::size_t>(1));
        QCOMPARE(record(1).state, std::string("1"));
        QTest::mouseClick(table.control(PlanetColumn::state), Qt::LeftButton);
        QCOMPARE(record(1).state, std::string("0"));

        auto* style = qobject_cast<QToolButton*>(table.control(PlanetColumn::style));
        QTest::mouseClick(style, Qt::LeftButton);
        QMenu* menu = style->findChild<QMenu*>(QStringLiteral("styleMetalMenu1_03"));
        QTRY_VERIFY(menu != nullptr && menu->isVisible());
        QTest::mouseClick(menu->findChild<QToolButton*>(QStringLiteral("choice82")),
                          Qt::LeftButton);
        QCOMPARE(record(1).styleindex, std::string("82"));
        QTRY_VERIFY(!menu->isVisible());
    }

    void deletingAsksUnlessTheSettingSaysNot() {
        createPlanets(2);
        mainWindow& window = app().window();
        app().tableView1().selectRow(0);
        QTest::mouseClick(&child<QPushButton>(window, "deletePlanetButton1"), Qt::LeftButton);
        QWidget* question = nullptr;
        QVERIFY((question = waitForTopLevel("questionSheet")) != nullptr);
        QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1001"), Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("questionSheet") == nullptr);
        QCOMPARE(app().state().planetArray.size(), std::size_t(2));

        app().settings().editData2(generalPosition(GeneralSwitch::deleteWithoutAsking), "1");
        app().menus().planetDelete->trigger();
        QCOMPARE(app().state().planetArray.size(), std::size_t(1));
        QVERIFY(visibleTopLevel("questionSheet") == nullptr);
        app().tableView1().selectRow(0);
        app().menus().planetDelete->trigger();
        QCOMPARE(app().tableView1().model()->rowCount(), 0);
        QVERIFY(!child<QCheckBox>(window, "allButton1").isEnabled());
        QVERIFY(!child<QPushButton>(window, "deletePlanetButton1").isEnabled());
        QVERIFY(!app().menus().fileExport->isEnabled());
    }

    void theSceneSelectsAndDragsAndUndoPutsItBack() {
        createPlanets(2);
        sceneView& scene = app().sceneview();
        app().tableView1().selectRow(0);
        auto* x = qobject_cast<QLineEdit*>(app().tableView1().control(PlanetColumn::x));
        typeInto(*x, "-200", Qt::Key_Return);
        const QPoint centre(scene.width() / 2, scene.height() / 2);
        QTest::mousePress(&scene.surface(), Qt::LeftButton, {}, centre);
        QCOMPARE(app().tableView1().selectedRow(), std::optional<std::size_t>(1));
        for (int step = 1; step <= 5; ++step)
            QTest::mouseMove(&scene.surface(), centre + QPoint(20 * step, 0));
        QTest::mouseRelease(&scene.surface(), Qt::LeftButton, {}, centre + QPoint(100, 0));
        QVERIFY(std::stod(record(1).xvalue) > 50.0);
        QCOMPARE(app().tableView1().model()->index(1, 4).data().toString(),
                 QString::fromStdString(record(1).xvalue));

        app().window().setFocus();
        app().menus().editUndo->trigger(); // the whole drag
        QCOMPARE(record(1).xvalue, std::string("0"));
        app().menus().editUndo->trigger(); // the typed x
        QCOMPARE(record(0).xvalue, std::string("0"));
        app().menus().editRedo->trigger();
        QCOMPARE(record(0).xvalue, std::string("-200"));
        QCOMPARE(app().tableView1().model()->index(0, 4).data().toString(), QStringLiteral("-200"));
    }

    void rowsCopyAndPasteBackAndRefusedRowsAreNamed() {
        AppDelegate& delegate = app();
        createPlanets(2);
        delegate.editor().editText(1, PlanetKey::name, "Comma, \"quoted\"");
        delegate.editor().editText(1, PlanetKey::radius, "12.5");
        delegate.editor().editColor(1, {0.3, 0.6, 0.9, 1.0});
        delegate.reloadPlanets();
        PlanetTable& table = delegate.tableView1();
        table.selectRow(1);
        table.setFocus();
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().startsWith(
            QStringLiteral("name\tshown\tstyle\tsurface\tx\ty\tz\tradius\tcolour\n")));
        QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(table.model()->rowCount(), 3);
        PlanetRecord pasted = record(2);
        QVERIFY(pasted.tsecs != record(1).tsecs);
        pasted.tsecs = record(1).tsecs;
        QCOMPARE(pasted, record(1));

        // A spreadsheet's rows: the bad one is named, the others added, one undo takes both.
        QApplication::clipboard()->setText(QStringLiteral("Name\tRadius\nIo\t3\nBad\t-5\n"
                                                          "Europa\t2\n"));
        QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(table.model()->rowCount(), 5);
        QCOMPARE(record(4).name, std::string("Europa"));
        auto& status = child<QLabel>(delegate.window(), "statusLabel1");
        QVERIFY(status.isVisible());
        QCOMPARE(status.text(), QStringLiteral("Rows refused: 3 (radius)"));
        delegate.menus().editUndo->trigger();
        QCOMPARE(table.model()->rowCount(), 3);

        // In a text field, Paste stays the field's own.
        QApplication::clipboard()->setText(QStringLiteral("Titan"));
        table.selectRow(1);
        auto* name = qobject_cast<QLineEdit*>(table.control(PlanetColumn::name));
        QVERIFY(name != nullptr);
        name->setFocus();
        name->selectAll();
        QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(name->text(), QStringLiteral("Titan"));
        QCOMPARE(table.model()->rowCount(), 3);
    }

    void planetsExportAndImportAsCsv() {
        AppDelegate& delegate = app();
        createPlanets(2);
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("planets.csv"));
        delegate.menus().fileExportPlanets->trigger();
        chooseInNextPanel("savePanel", file);
        QTRY_VERIFY(contents(file).startsWith("name,shown,style,surface,x,y,z,radius,colour\r\n"));
        delegate.menus().fileImportPlanets->trigger();
        chooseInNextPanel("rowsPanel", file);
        QTRY_COMPARE(delegate.tableView1().model()->rowCount(), 4);
        QCOMPARE(record(3).name, std::string("Planet 2"));
    }

private:
    const PlanetRecord& record(std::size_t row) { return app().state().planetArray.at(row); }

    // Planets with distinct identities, as if made a second apart.
    void createPlanets(int count) {
        for (int i = 0; i < count; ++i)
            app().editor().createPlanet(std::to_string(1000 + i),
                                        "Planet " + std::to_string(i + 1));
        app().reloadPlanets();
    }
};

std::unique_ptr<QObject> makePlanetsTest() {
    return std::make_unique<PlanetsTest>();
}

} // namespace orrery::window::testing

#include "PlanetsTest.moc"
