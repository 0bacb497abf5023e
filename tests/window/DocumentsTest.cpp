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
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace orrery::window::testing {
namespace {

QWidget* visibleTopLevel(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return window;
    return nullptr;
}

QByteArray runOrrery(const QStringList& arguments) {
    QProcess orrery;
    orrery.start(QStringLiteral(ORRERY_EXECUTABLE), arguments);
    orrery.waitForFinished(30000);
    return orrery.readAllStandardOutput();
}

} // namespace

class DocumentsTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        app_ = std::make_unique<FreshStart>();
        app_->start();
    }
    void cleanup() { app_.reset(); }

    void aSavedPackageReadsBackThroughTheCommandLine() {
        AppDelegate& app = app_->delegate();
        app.editor().createPlanet("1424700000", "Terra");
        app.editor().editText(0, PlanetKey::radius, "31.5");
        app.editor().editIndex(0, PlanetKey::surfaceindex, 7);
        app.editor().setCamera(60, 45, 10, -5, 400, false, true);
        app.reloadPlanets();
        app.setSceneBackground(4);
        const QString package = folder_.filePath(QStringLiteral("Terra.kvx"));
        saveAs(package);
        QVERIFY(!app.hasUnsavedChanges());
        QVERIFY(app.menus().fileSave->isEnabled());

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
        AppDelegate& app = app_->delegate();
        app.openFiles({package, folder_.filePath(QStringLiteral("Second.kvx"))});
        QTRY_COMPARE(app.state().projectpath, package.toStdString());
        QCOMPARE(app.tableView1().model()->rowCount(), 2);
        QCOMPARE(app.tableView1().model()->index(0, 0).data().toString(), QStringLiteral("Earth"));
        QCOMPARE(app.state().currentBackground, 2L);
        QCOMPARE(app.screenview().currentColor(), 2L);
        QVERIFY(app.menus().sceneColorItems[2]->isChecked());
        auto& light = child<LightPopover>(app.window(), "popOver4");
        QCOMPARE(light.xField4().text(), QStringLiteral("-500.000000"));
        QVERIFY(qFuzzyCompare(app.state().lightColor.blue, 0.96));
        QVERIFY(child<QLabel>(app.window(), "titleLabel0").text().endsWith(": Earth"));
        QVERIFY(app.menus().fileSave->isEnabled());
    }

    void aBrokenPackageLeavesTheSystemAsItWas() {
        AppDelegate& app = app_->delegate();
        app.editor().createPlanet("100", "Kept");
        app.reloadPlanets();
        const QString broken = folder_.filePath(QStringLiteral("Broken.kvx"));
        QDir().mkpath(broken);
        QFile garbage(broken + QStringLiteral("/data2.xml"));
        QVERIFY(garbage.open(QIODevice::WriteOnly));
        garbage.write("not a property list");
        garbage.close();
        app.openFiles({broken});
        // First the offer to save the unsaved planet, given up here.
        QWidget* question = nullptr;
        QTRY_VERIFY((question = visibleTopLevel("questionSheet")) != nullptr);
        QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1001"), Qt::LeftButton);
        QWidget* alert = nullptr;
        QTRY_VERIFY((alert = visibleTopLevel("questionSheet")) != nullptr && alert != question);
        QVERIFY(static_cast<QMessageBox*>(alert)->informativeText().contains("Broken.kvx"));
        QCOMPARE(app.state().planetArray.at(0).name, std::string("Kept"));
        QCOMPARE(app.tableView1().model()->rowCount(), 1);
        QVERIFY(app.state().projectpath.empty());
    }

    void aSaveThatCannotBeWrittenSaysSoAndLosesNothing() {
        AppDelegate& app = app_->delegate();
        app.editor().createPlanet("100", "Precious");
        app.reloadPlanets();
        // A folder that cannot hold the package: its "parent" is a file.
        QFile blocker(folder_.filePath(QStringLiteral("blocker")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        saveAs(blocker.fileName() + QStringLiteral("/Precious.kvx"), false);
        QWidget* alert = nullptr;
        QTRY_VERIFY((alert = visibleTopLevel("questionSheet")) != nullptr);
        QVERIFY(static_cast<QMessageBox*>(alert)->informativeText().contains("blocker"));
        QVERIFY(app.hasUnsavedChanges());
        QCOMPARE(app.state().planetArray.size(), std::size_t(1));
        QVERIFY(app.state().projectpath.empty());
    }

    void saveWithoutAPackageAsksWhereAndNewKeepsThePackage() {
        AppDelegate& app = app_->delegate();
        QVERIFY(!app.menus().fileSave->isEnabled()); // until the first save or open
        app.saveProject1();
        QFileDialog* panel = nullptr;
        QTRY_VERIFY((panel = qobject_cast<QFileDialog*>(visibleTopLevel("savePanel"))) != nullptr);
        panel->reject();
        const QString package = folder_.filePath(QStringLiteral("Kept.kvx"));
        saveAs(package);

        app.settings().editData2(4, "1"); // New without asking
        app.editor().createPlanet("100", "Later");
        app.reloadPlanets();
        app.menus().fileNew->trigger();
        QVERIFY(visibleTopLevel("questionSheet") == nullptr);
        QCOMPARE(app.state().planetArray.size(), std::size_t(0));
        // Save writes over the last package without a panel.
        app.menus().fileSave->trigger();
        QTRY_VERIFY(visibleTopLevel("progressSheet") == nullptr);
        QVERIFY(visibleTopLevel("savePanel") == nullptr);
        OpenedProject reread;
        std::string error;
        QTRY_VERIFY(readProjectPackage(package.toStdString(), reread, error) &&
                    reread.planets.empty());

        // A package deleted meanwhile makes Save ask where again.
        QDir(package).removeRecursively();
        app.menus().fileSave->trigger();
        QTRY_VERIFY((panel = qobject_cast<QFileDialog*>(visibleTopLevel("savePanel"))) != nullptr);
        panel->reject();
    }

private:
    // Save As through its panel, as a person would type the name.
    void saveAs(const QString& path, bool expectSuccess = true) {
        app_->delegate().menus().fileSaveAs->trigger();
        QFileDialog* panel = nullptr;
        QTRY_VERIFY((panel = qobject_cast<QFileDialog*>(visibleTopLevel("savePanel"))) != nullptr);
        chooseInPanel(*panel, path);
        if (expectSuccess)
            QTRY_COMPARE(app_->delegate().state().projectpath, path.toStdString());
    }

    QTemporaryDir folder_;
    std::unique_ptr<FreshStart> app_;
};

std::unique_ptr<QObject> makeDocumentsTest() {
    return std::make_unique<DocumentsTest>();
}

} // namespace orrery::window::testing

#include "DocumentsTest.moc"
