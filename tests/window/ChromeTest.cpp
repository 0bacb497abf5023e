#include "customWin/ImageButton.h"
#include "customWin/mainWindow.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace orrery::window::testing {
namespace {

void typeAndReturn(QLineEdit& field, const QString& text) {
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

bool isRed(const QLineEdit& field) {
    return field.palette().color(QPalette::Text) == QColor(Qt::red);
}

} // namespace

class ChromeTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void sizeFieldsResizeTheWindowAroundTheDocumentOrTurnRed() {
        mainWindow& window = app().window();
        auto& width = child<QLineEdit>(window, "widthField1");
        auto& height = child<QLineEdit>(window, "heightField1");
        const QSize before = window.size();
        typeAndReturn(width, QStringLiteral("609"));
        QVERIFY(isRed(width));
        QCOMPARE(width.text(), QStringLiteral("609"));
        QTest::qWait(50);
        QCOMPARE(window.size(), before);

        typeAndReturn(width, QStringLiteral("610"));
        QVERIFY(!isRed(width));
        QTRY_COMPARE(window.width(), 652);
        QCOMPARE(child<QWidget>(window, "sceneView").size(), QSize(610, 540));
        QCOMPARE(child<QWidget>(window, "screenView").size(), QSize(610, 540));

        typeAndReturn(height, QStringLiteral("12a"));
        QVERIFY(isRed(height));
        typeAndReturn(height, QStringLiteral("420"));
        QTRY_COMPARE(window.height(), 684);
        QVERIFY(!isRed(height));
    }

    void hoveringOneWindowButtonLightsAllThree() {
        mainWindow& window = app().window();
        auto& close = child<ImageButton>(window, "closeButton0");
        auto& minimise = child<ImageButton>(window, "minButton0");
        auto& zoom = child<ImageButton>(window, "maxButton0");
        QCOMPARE(minimise.geometry(), QRect(28, 4, 16, 16));
        QTest::mouseMove(&minimise, QPoint(8, 8));
        QTRY_COMPARE(close.imageName(), QStringLiteral("close-rollover-color"));
        QCOMPARE(minimise.imageName(), QStringLiteral("minimize-rollover-color"));
        QCOMPARE(zoom.imageName(), QStringLiteral("zoom-rollover-color"));
        QTest::mouseMove(&child<QLabel>(window, "titleLabel0"), QPoint(400, 12));
        QTRY_COMPARE(close.imageName(), QStringLiteral("close-active-color"));
        QCOMPARE(minimise.imageName(), QStringLiteral("minimize-active-color"));
        QCOMPARE(zoom.imageName(), QStringLiteral("zoom-active-color"));
    }

    void fullScreenHidesTheTitleBarAndShowsTheLargerDocument() {
        mainWindow& window = app().window();
        auto& full = child<ImageButton>(window, "fullButton0");
        QTest::mouseClick(&full, Qt::LeftButton);
        // The window manager carries it out, in its own time on a busy machine.
        QTRY_VERIFY_WITH_TIMEOUT(window.isFullScreen(), 20000);
        QTRY_COMPARE_WITH_TIMEOUT(window.size(), window.screen()->size(), 20000);
        QVERIFY(!child<QLabel>(window, "titleLabel0").isVisible());
        QVERIFY(!full.isVisible());
        // The title strip folds away: the document takes the screen less the chrome, on a
        // screen of any size (the suite runs on a small and on a large one).
        const QSize screen = window.screen()->size();
        QTRY_COMPARE(child<QLineEdit>(window, "widthField1").text(),
                     QString::number(screen.width() - 42));
        QCOMPARE(child<QLineEdit>(window, "heightField1").text(),
                 QString::number(screen.height() - 236));

        app().menus().windowFullScreen->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(!window.isFullScreen(), 20000);
        QTRY_COMPARE_WITH_TIMEOUT(child<QLineEdit>(window, "widthField1").text(),
                                  QStringLiteral("960"), 20000);
        QCOMPARE(child<QLineEdit>(window, "heightField1").text(), QStringLiteral("540"));
        QVERIFY(child<QLabel>(window, "titleLabel0").isVisible());
        QVERIFY(full.isVisible());
    }
};

std::unique_ptr<QObject> makeChromeTest() {
    return std::make_unique<ChromeTest>();
}

} // namespace orrery::window::testing

#include "ChromeTest.moc"
