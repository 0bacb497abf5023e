#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/screenView.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QSignalSpy>
#include <QTest>

namespace orrery::window::testing {
namespace {

// A new planet is white and lit from the front; the background is black.
bool isPlanet(const QColor& colour) {
    return colour.red() > 120 && colour.green() > 120 && colour.blue() > 120;
}

// Whether any pixel of the box has the colour's hue (red or blue strongly over the rest).
bool boxHas(const QImage& image, const QRect& box, bool red) {
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const int strong = red ? c.red() : c.blue();
            const int other = red ? c.blue() : c.red();
            if (strong > 150 && other < 80 && c.green() < 80)
                return true;
        }
    return false;
}

} // namespace

class SceneTest : public QObject {
    Q_OBJECT
private slots:
    void backdropPaintsItsColoursAndTheCheckerboardFromTheBottomLeft() {
        screenView backdrop(nullptr);
        backdrop.resize(400, 310);
        backdrop.setColor(3);
        QCOMPARE(backdrop.grab().toImage().pixelColor(50, 40), QColor(20, 30, 80));
        backdrop.setColor(9);
        const QImage board = backdrop.grab().toImage();
        const QColor light(252, 252, 252);
        const QColor dark(191, 191, 191);
        QCOMPARE(board.pixelColor(0, 309), light);
        QCOMPARE(board.pixelColor(19, 290), light);
        QCOMPARE(board.pixelColor(20, 309), dark);
        QCOMPARE(board.pixelColor(0, 289), dark);
        // 310 is not a whole number of squares: the top row is cut, not the bottom one.
        QCOMPARE(board.pixelColor(0, 0), dark);
    }

    void axisLabelsSitBesideTheCentre() {
        screenView backdrop(nullptr);
        backdrop.resize(400, 300);
        backdrop.setColor(1);
        const QImage shown = backdrop.grab().toImage();
        // X's baseline starts at (365, 140) from the bottom-left, Z's at (195, 133).
        QVERIFY(boxHas(shown, QRect(365, 300 - 140 - 13, 12, 13), true));
        QVERIFY(boxHas(shown, QRect(195, 300 - 133 - 13, 12, 13), false));
        QVERIFY(!boxHas(shown, QRect(20, 20, 100, 100), true));
        backdrop.hideAxes(false);
        QVERIFY(!boxHas(backdrop.grab().toImage(), QRect(365, 147, 12, 13), true));
    }

    void aPlanetShowsAndFollowsTheMouse() {
        FreshStart app;
        app.start();
        app.delegate().setSceneBackground(2);
        sceneView& scene = app.delegate().sceneview();
        QSignalSpy frames(&scene, &sceneView::framePainted);
        scene.scene().createPlanet("1424700000", "0.0", "0.0", "0.0", "24.0");
        QTRY_VERIFY(!frames.isEmpty());
        const QPoint centre(scene.width() / 2, scene.height() / 2);
        QTRY_VERIFY(isPlanet(pixelOnScreen(scene, centre)));
        QVERIFY(!isPlanet(pixelOnScreen(scene, centre + QPoint(100, 0))));

        QSignalSpy hits(&scene, &sceneView::planetHit);
        QSignalSpy moves(&scene, &sceneView::planetMoved);
        QTest::mousePress(&scene.surface(), Qt::LeftButton, {}, centre);
        QCOMPARE(hits.size(), 1);
        QCOMPARE(hits.first().first().toString(), QStringLiteral("1424700000"));
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(&scene.surface(), centre + QPoint(10 * step, 0));
        QTest::mouseRelease(&scene.surface(), Qt::LeftButton, {}, centre + QPoint(100, 0));
        QVERIFY(moves.size() >= 1);
        const QList<QVariant> last = moves.last();
        QCOMPARE(last.at(0).toString(), QStringLiteral("1424700000"));
        QVERIFY(last.at(1).toDouble() > 50.0);
        QCOMPARE(last.at(2).toString(), QStringLiteral("0"));
        QCOMPARE(last.at(3).toString(), QStringLiteral("0"));
        QTRY_VERIFY(isPlanet(pixelOnScreen(scene, centre + QPoint(100, 0))));
        QVERIFY(!isPlanet(pixelOnScreen(scene, centre - QPoint(40, 0))));

        // A press on empty space selects nothing and a drag then moves nothing.
        QTest::mousePress(&scene.surface(), Qt::LeftButton, {}, QPoint(20, 20));
        QCOMPARE(hits.last().first().toString(), QStringLiteral("0"));
        const qsizetype movesBefore = moves.size();
        QTest::mouseMove(&scene.surface(), QPoint(60, 20));
        QTest::mouseRelease(&scene.surface(), Qt::LeftButton, {}, QPoint(60, 20));
        QCOMPARE(moves.size(), movesBefore);
    }
};

std::unique_ptr<QObject> makeSceneTest() {
    return std::make_unique<SceneTest>();
}

} // namespace orrery::window::testing

#include "SceneTest.moc"
