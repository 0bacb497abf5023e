#include "core/app/AppPaths.h"
#include "core/settings/Settings.h"
#include "customWin/mainWindow.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QProcess>
#include <QTest>

namespace orrery::window::testing {
namespace {

Settings settingsIn(const QString& folder) {
    return Settings(AppPaths::inFolder(folder.toStdString()));
}

std::vector<std::string> storedWindows(const QString& folder) {
    Settings settings = settingsIn(folder);
    settings.readWindows();
    return settings.windowArray;
}

} // namespace

class StartupTest : public QObject {
    Q_OBJECT
private slots:
    void firstStartMakesSettingsThenCentresAndStoresTheWindow() {
        FreshStart app;
        const QString folder = app.appFolder();
        bool settingsBeforeShow = false;
        struct ShowWatch : QObject {
            std::function<void()> onShow;
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Show)
                    onShow();
                return false;
            }
        } watch;
        watch.onShow = [&] {
            settingsBeforeShow = true;
            for (const char* file : {"/Data0.data", "/Data1.data", "/Data2.data"})
                settingsBeforeShow &= QFileInfo::exists(folder + QLatin1String(file));
        };
        app.delegate().window().installEventFilter(&watch);
        app.start();
        QVERIFY(settingsBeforeShow);
        // 960 x 540 on the 1920 x 1080 test screen: a 1002 x 804 window in the middle.
        QCOMPARE(app.delegate().window().frameGeometry(), QRect(459, 138, 1002, 804));
        const std::vector<std::string> stored = storedWindows(folder);
        QCOMPARE(stored.size(), std::size_t(12));
        QCOMPARE(stored[0], std::string("1002.000000"));
        QCOMPARE(stored[3], std::string("138.000000"));
        QCOMPARE(app.delegate().state().currentBackground, 0L);
        QVERIFY(app.delegate().menus().sceneColorItems[0]->isChecked());
    }

    void storedFrameComesBackAndOneOffScreenIsBroughtBack() {
        FreshStart app;
        Settings settings = settingsIn(app.appFolder());
        createAppFolder(settings.paths().filePathA);
        settings.openCreateDB0();
        settings.saveData0("700", "Width0");
        settings.saveData0("720.5", "Height0");
        settings.saveData0("100", "Left0");
        settings.saveData0("60", "Top0");
        app.start();
        QCOMPARE(app.delegate().window().frameGeometry(), QRect(100, 60, 700, 720));
        QCOMPARE(child<QLineEdit>(app.delegate().window(), "widthField1").text(), "658");
        QCOMPARE(child<QLineEdit>(app.delegate().window(), "heightField1").text(), "456");

        // Last time the window was on a second screen that is gone now.
        app.delegate().window().close();
        settings.saveData0("5000", "Left0");
        app.restart();
        QCOMPARE(app.delegate().window().frameGeometry(), QRect(610, 180, 700, 720));
    }

    void closingStoresTheFrame() {
        FreshStart app;
        app.start();
        app.delegate().window().move(200, 100);
        QTRY_COMPARE(app.delegate().window().frameGeometry().topLeft(), QPoint(200, 100));
        app.delegate().window().close();
        const std::vector<std::string> stored = storedWindows(app.appFolder());
        QCOMPARE(stored[2], std::string("200.000000"));
        QCOMPARE(stored[3], std::string("100.000000"));
    }

    // A display without OpenGL (the offscreen platform has none) is told, not crashed on.
    void aDisplayWithoutOpenGLIsToldInOneLineAndTheProgramEnds() {
        QProcess orrery;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        // With an X display the offscreen platform borrows its OpenGL; without one it has none.
        environment.remove(QStringLiteral("DISPLAY"));
        orrery.setProcessEnvironment(environment);
        orrery.start(QStringLiteral(ORRERY_EXECUTABLE), {});
        QVERIFY(orrery.waitForFinished(30000));
        QCOMPARE(orrery.exitStatus(), QProcess::NormalExit);
        QCOMPARE(orrery.exitCode(), 1);
        const QStringList lines = QString::fromLocal8Bit(orrery.readAllStandardError())
                                      .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                      .filter(QStringLiteral("orrery:"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().contains(QStringLiteral("OpenGL")));
    }
};

std::unique_ptr<QObject> makeStartupTest() {
    return std::make_unique<StartupTest>();
}

} // namespace orrery::window::testing

#include "StartupTest.moc"
