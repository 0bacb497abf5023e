#include "customWin/CameraPopover.h"
#include "customWin/PlanetPanel.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace orrery::window::testing {
namespace {

bool isRed(const QLineEdit& field) {
    return field.palette().color(QPalette::Text) == QColor(Qt::red);
}

void retype(QLineEdit& field, const char* text) {
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QLatin1String(text));
}

} // namespace

class CameraLightTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void theCameraRecordsWhatItIsGivenButOnlyMoves() {
        mainWindow& window = app().window();
        QTest::mouseClick(&child<QPushButton>(window, "cameraButton5"), Qt::LeftButton);
        auto& popover = child<CameraPopover>(window, "popOver5");
        QTRY_VERIFY(popover.isVisible());
        QCOMPARE(popover.field(cameraField::xfov).text(), QStringLiteral("45.0"));
        QCOMPARE(popover.field(cameraField::z).text(), QStringLiteral("500.000000"));
        QVERIFY(popover.orthoButton5().isChecked() && popover.adjustZButton5().isChecked());

        QTest::mouseClick(&popover.orthoButton5(), Qt::LeftButton);
        QCOMPARE(settings().back(), std::string("1"));
        QCOMPARE(settings()[5], std::string("0"));

        retype(popover.field(cameraField::z), "0");
        QVERIFY(isRed(popover.field(cameraField::z)));
        QTest::mouseClick(&popover.adjustZButton5(), Qt::LeftButton);
        QCOMPARE(settings()[4], std::string("500.000000"));
        QCOMPARE(settings()[6], std::string("1"));
        retype(popover.field(cameraField::z), "500");
        QVERIFY(!isRed(popover.field(cameraField::z)));
        retype(popover.field(cameraField::xfov), "95");
        QVERIFY(isRed(popover.field(cameraField::xfov)));
        QCOMPARE(settings()[0], std::string("45.0"));

        // The field of view is recorded, but a planet in view keeps its place and size.
        app().editor().createPlanet("100", "Terra");
        app().reloadPlanets();
        const QImage before = app().sceneview().grabFramebuffer();
        const QPoint middle = before.rect().center();
        QVERIFY(before.pixelColor(middle) != before.pixelColor(0, 0)); // the planet shows
        retype(popover.field(cameraField::xfov), "60");
        QCOMPARE(settings()[0], std::string("60.0"));
        QCOMPARE(app().sceneview().grabFramebuffer(), before);
        // Typing into one field is one step to undo.
        window.setFocus();
        app().menus().editUndo->trigger();
        QCOMPARE(settings()[0], std::string("45.0"));
    }

    void theLightDefaultShowsFiftyUntilThePopoverOpensAgain() {
        mainWindow& window = app().window();
        auto& button = child<QPushButton>(window, "lightButton4");
        QTest::mouseClick(&button, Qt::LeftButton);
        auto& popover = child<LightPopover>(window, "popOver4");
        QTRY_VERIFY(popover.isVisible());
        retype(popover.field(lightField::x), "12");
        QCOMPARE(app().sceneview().scene().getLightPosition().x, 12.0);
        QTest::mouseClick(&popover.defaultButton4(), Qt::LeftButton);
        QCOMPARE(popover.field(lightField::z).text(), QStringLiteral("50.000000"));
        QCOMPARE(app().sceneview().scene().getLightPosition(), (Vec3{0, 0, 100}));
        QTest::mouseClick(&button, Qt::LeftButton); // closes
        QTest::mouseClick(&button, Qt::LeftButton); // opens
        QTRY_VERIFY(popover.isVisible());
        QCOMPARE(popover.field(lightField::z).text(), QStringLiteral("100.000000"));
    }

    void aPopoverClosedByAClickOutsideNeedsTwoClicksToOpenAgain() {
        auto& button = child<QPushButton>(app().window(), "cameraButton5");
        auto& popover = child<CameraPopover>(app().window(), "popOver5");
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_VERIFY(popover.isVisible());
        popover.close(); // as a click elsewhere closes it
        QVERIFY(app().state().popover5shown);
        app().show1bClicked();
        QVERIFY(!popover.isVisible());
        QVERIFY(!app().state().popover5shown);
        app().show1bClicked();
        QVERIFY(popover.isVisible());
    }

private:
    std::vector<std::string> settings() { return app().sceneview().scene().getCameraSettings(); }
};

std::unique_ptr<QObject> makeCameraLightTest() {
    return std::make_unique<CameraLightTest>();
}

} // namespace orrery::window::testing

#include "CameraLightTest.moc"
