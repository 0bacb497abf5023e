#include "core/package/ProjectPackage.h"
#include "customWin/CameraPopover.h"
#include "customWin/mainWindow.h"
#include "customWin/screenView.h"
#include "customWin/tableView1/PlanetTable.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QFileDialog>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace orrery::window::testing {

class DocumentsTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void aSavedPackageReadsBackThroughTheCommandLine() {
        AppDelegate& delegate = app();
        delegate.editor().createPlanet("1424700000", "Terra");
        delegate.editor().editText(0, PlanetKey::radius, "31.5");
        delegate.editor().editIndex(0, PlanetKey::surfaceindex, 7);
        delegate.editor().setCamera(60, 45, 10, -5, 400, false, true);
        delegate.reloadPlanets();
        delegate.chooseBackground(4);
        const QString package = folder_.filePath(QStringLiteral("Terra.kvx"));
        saveAs(package);
        QVERIFY(!delegate.hasUnsavedChanges());
        QVERIFY(delegate.menus().fileSave->isEnabled());

        const QJsonObject info = QJsonDocument::fromJson(runOrrery({"info", package})).object();
        QCOMPARE(info["background"].toString(), QStringLiteral("4"));
        QCOMPARE(info["document"].toObject()["width"].toString(), QStringLiteral("960"));
        QCOMPARE(info["camera"].toObject()["xfov"].toString(), QStringLiteral("60.0"));
        QCOMPARE(info["camera"].toObject()["orthographic"].toString(), QStringLiteral("0"));
        const QJsonObject planet = info["planets"].toArray().first().toObject();
        QCOMPARE(planet["name"].toString(), QStringLiteral("Terra"));
        QCOMPARE(planet["radius"].toString(), QStringLiteral("31.5"));
        QCOMPARE(planet["surfaceindex"].toString(), QStringLiteral("7"));
    }

    void aConvertedPackageOpensWithEveryValue() {
        const QString package = folder_.filePath(QStringLiteral("Earth.kvx"));
        runOrrery({"convert", QStringLiteral(ORRERY_SOURCE_DIR "/examples/earth-and-moon.json"),
                   package});
        AppDelegate& delegate = app();
        delegate.openFiles({package, folder_.filePath(QStringLiteral("Second.kvx"))});
        QTRY_COMPARE(delegate.state().projectpath, package.toStdString());
        QCOMPARE(delegate.tableView1().model()->rowCount(), 2);
        QCOMPARE(delegate.tableView1().model()->index(0, 0).data().toString(),
                 QStringLiteral("Earth"));
        QCOMPARE(delegate.state().currentBackground, 2L);
        QCOMPARE(delegate.screenview().currentColor(), 2L);
        QVERIFY(delegate.menus().sceneColorItems[2]->isChecked());
        auto& light = child<LightPopover>(delegate.window(), "popOver4");
        QCOMPARE(light.field(lightField::x).text(), QStringLiteral("-500.000000"));
        QVERIFY(qFuzzyCompare(delegate.state().lightColor.blue, 0.96));
        QVERIFY(child<QLabel>(delegate.window(), "titleLabel0").text().endsWith(": Earth"));
        QVERIFY(delegate.menus().fileSave->isEnabled());
    }

    void aBrokenPackageLeavesTheSystemAsItWas() {
        AppDelegate& delegate = app();
        delegate.editor().createPlanet("100", "Kept");
        delegate.reloadPlanets();
        const QString broken = folder_.filePath(QStringLiteral("Broken.kvx"));
        QDir().mkpath(broken);
        QFile garbage(broken + QStringLiteral("/data2.xml"));
        QVERIFY(garbage.open(QIODevice::WriteOnly));
        garbage.write("not a property list");
        garbage.close();
        delegate.openFiles({broken});
        // First the offer to save the unsaved planet, given up here.
        QWidget* question = nullptr;
        QVERIFY((question = waitForTopLevel("questionSheet")) != nullptr);
        QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1001"), Qt::LeftButton);
        QWidget* alert = nullptr;
        QTRY_VERIFY((alert = visibleTopLevel("questionSheet")) != nullptr && alert != question);
        QVERIFY(static_cast<QMessageBox*>(alert)->informativeText().contains("Broken.kvx"));
        QCOMPARE(delegate.state().planetArray.at(0).name, std::string("Kept"));
        QCOMPARE(delegate.tableView1().model()->rowCount(), 1);
        QVERIFY(delegate.state().projectpath.empty());
    }

    void aSaveThatCannotBeWrittenSaysSoAndLosesNothing() {
        AppDelegate& delegate = app();
        delegate.editor().createPlanet("100", "Precious");
        delegate.reloadPlanets();
        // A folder that cannot hold the package: its "parent" is a file.
        QFile blocker(folder_.filePath(QStringLiteral("blocker")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        saveAs(blocker.fileName() + QStringLiteral("/Precious.kvx"), false);
        QWidget* alert = nullptr;
        QVERIFY((alert = waitForTopLevel("questionSheet")) != nullptr);
        QVERIFY(static_cast<QMessageBox*>(alert)->informativeText().contains("blocker"));
        QVERIFY(delegate.hasUnsavedChanges());
        QCOMPARE(delegate.state().planetArray.size(), std::size_t(1));
        QVERIFY(delegate.state().projectpath.empty());
    }

    void saveWithoutAPackageAsksWhereAndNewKeepsThePackage() {
        AppDelegate& delegate = app();
        QVERIFY(!delegate.menus().fileSave->isEnabled()); // until the first save or open
        delegate.saveProject1();
        QFileDialog* panel = nullptr;
        QVERIFY((panel = waitForTopLevel<QFileDialog>("savePanel")) != nullptr);
        panel->reject();
        const QString package = folder_.filePath(QStringLiteral("Kept.kvx"));
        saveAs(package);

        delegate.settings().editData2(generalPosition(GeneralSwitch::clearWithoutAsking), "1");
        delegate.editor().createPlanet("100", "Later");
        delegate.reloadPlanets();
        delegate.menus().fileNew->trigger();
        // Unsaved changes are still offered for saving; given up here.
        QWidget* question = nullptr;
        QVERIFY((question = waitForTopLevel("questionSheet")) != nullptr);
        QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1001"), Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("questionSheet") == nullptr);
        QCOMPARE(delegate.state().planetArray.size(), std::size_t(0));
        // Save writes over the last package without a panel.
        delegate.menus().fileSave->trigger();
        QTRY_VERIFY(visibleTopLevel("progressSheet") == nullptr);
        QVERIFY(visibleTopLevel("savePanel") == nullptr);
        OpenedProject reread;
        std::string error;
        QTRY_VERIFY(readProjectPackage(package.toStdString(), reread, error) &&
                    reread.planets.empty());

        // A package deleted meanwhile makes Save ask where again.
        QDir(package).removeRecursively();
        delegate.menus().fileSave->trigger();
        QVERIFY((panel = waitForTopLevel<QFileDialog>("savePanel")) != nullptr);
        panel->reject();
    }

    void aPictureOpensAsItsSystemAndSaveAsksForAName() {
        const QString package = folder_.filePath(QStringLiteral("Earth.kvx"));
        const QString picture = folder_.filePath(QStringLiteral("Earth.png"));
        runOrrery({"convert", QStringLiteral(ORRERY_SOURCE_DIR "/examples/earth-and-moon.json"),
                   package});
        runOrrery({"render", package, "-o", picture});
        const QByteArray before = contents(picture);
        QVERIFY(!before.isEmpty());
        AppDelegate& delegate = app();
        delegate.menus().fileOpen->trigger();
        chooseInNextPanel("openPanel", picture);
        QTRY_COMPARE(delegate.tableView1().model()->rowCount(), 2);
        QCOMPARE(delegate.tableView1().model()->index(0, 0).data().toString(),
                 QStringLiteral("Earth"));
        QCOMPARE(delegate.state().currentBackground, 2L);
        QCOMPARE(child<QLabel>(delegate.window(), "titleLabel0").text(),
                 QCoreApplication::applicationName());
        QCOMPARE(contents(picture), before);
        // The picture is no package: Save asks for a name.
        delegate.menus().fileSave->trigger();
        QFileDialog* panel = nullptr;
        QVERIFY((panel = waitForTopLevel<QFileDialog>("savePanel")) != nullptr);
        panel->reject();

        // A picture that carries no system, dropped on the window, is refused in one line.
        const QString plain = folder_.filePath(QStringLiteral("Plain.png"));
        QVERIFY(QImage(8, 8, QImage::Format_ARGB32).save(plain));
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(plain)});
        // Through the native window, as a drag from a file manager arrives.
        QWindow* target = delegate.window().windowHandle();
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &mime, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
        QWidget* alert = nullptr;
        QVERIFY((alert = waitForTopLevel("questionSheet")) != nullptr);
        QCOMPARE(static_cast<QMessageBox*>(alert)->informativeText(),
                 plain + QStringLiteral(": this picture carries no system"));
        QCOMPARE(delegate.tableView1().model()->rowCount(), 2);
    }

private:
    // Save As through its panel, as a person would type the name.
    void saveAs(const QString& path, bool expectSuccess = true) {
        app().menus().fileSaveAs->trigger();
        chooseInNextPanel("savePanel", path);
        if (expectSuccess)
            QTRY_COMPARE(app().state().projectpath, path.toStdString());
    }

    QTemporaryDir folder_;
};

std::unique_ptr<QObject> makeDocumentsTest() {
    return std::make_unique<DocumentsTest>();
}

} // namespace orrery::window::testing

#include "DocumentsTest.moc"
