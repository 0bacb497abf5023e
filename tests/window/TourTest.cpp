#include "core/settings/Settings.h"
#include "customWin/introduction/NumberBadge.h"
#include "customWin/introduction/introductionWindow.h"
#include "customWin/mainWindow.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace orrery::window::testing {
namespace {

introductionWindow& shownTour() {
    auto* tour = qobject_cast<introductionWindow*>(visibleTopLevel("introductionWindow"));
    if (tour == nullptr)
        qFatal("the tour is not showing");
    return *tour;
}

// The badge's colour, on its top edge between the rounded corners.
QColor badgeColour(introductionWindow& tour) {
    const QImage badge = tour.countView7().pixmap().toImage();
    return badge.pixelColor(badge.width() / 2, 1);
}

std::string storedTourSwitch(FreshStart& app) {
    Settings settings(app.delegate().settings().paths());
    settings.readGeneral();
    return settings.checkboxArray.at(generalPosition(GeneralSwitch::skipTour));
}

} // namespace

class TourTest : public QObject {
    Q_OBJECT
private slots:
    void firstStartShowsTheTourUntilItIsSwitchedOff() {
        FreshStart app;
        app.start(FreshStart::Tour::keep);
        introductionWindow& tour = shownTour();
        QVERIFY(app.delegate().state().introductionWindowOpen);
        QVERIFY(!tour.backButton7().isEnabled());
        QVERIFY(tour.introductionLabel7().text().contains(app.delegate().readAppname()));
        QVERIFY(!tour.introView7().pixmap().isNull());

        // Switched on and off again, the box still leaves the tour off for later starts.
        QTest::mouseClick(&tour.noshowButton7(), Qt::LeftButton);
        QTest::mouseClick(&tour.noshowButton7(), Qt::LeftButton);
        QVERIFY(!tour.noshowButton7().isChecked());
        QCOMPARE(storedTourSwitch(app), std::string("1"));
        tour.close();
        QVERIFY(!app.delegate().state().introductionWindowOpen);

        app.restart(FreshStart::Tour::keep);
        QVERIFY(visibleTopLevel("introductionWindow") == nullptr);
    }

    void pagesTurnToEitherEnd() {
        FreshStart app;
        app.start(FreshStart::Tour::keep);
        introductionWindow& tour = shownTour();
        QPushButton& forward = tour.forwardButton7();
        QPushButton& back = tour.backButton7();
        for (int press = 0; press < 11; ++press)
            QTest::mouseClick(&forward, Qt::LeftButton);
        QCOMPARE(app.delegate().state().currentPage, 12);
        QCOMPARE(tour.countView7().accessibleName(), QStringLiteral("12"));
        QCOMPARE(badgeColour(tour), kBadgeRed);
        QVERIFY(!forward.isEnabled());
        QVERIFY(back.isEnabled());
        const QString lastText = tour.introductionLabel7().text();
        forward.click(); // disabled, and the controller ignores it at the last page anyway
        app.delegate().forward7Clicked();
        QCOMPARE(app.delegate().state().currentPage, 12);
        QCOMPARE(tour.introductionLabel7().text(), lastText);

        QTest::mouseClick(&back, Qt::LeftButton);
        QCOMPARE(badgeColour(tour), kBadgeOrange);
        QVERIFY(forward.isEnabled());
        for (int page = 11; page > 2; --page)
            QTest::mouseClick(&back, Qt::LeftButton);
        QCOMPARE(app.delegate().state().currentPage, 2);
        QTest::mouseClick(&back, Qt::LeftButton);
        QCOMPARE(app.delegate().state().currentPage, 1);
        QVERIFY(tour.introductionLabel7().text().contains(app.delegate().readAppname()));
        QCOMPARE(badgeColour(tour), kBadgeRed);
        QVERIFY(!back.isEnabled());
        QVERIFY(forward.isEnabled());
    }
};

std::unique_ptr<QObject> makeTourTest() {
    return std::make_unique<TourTest>();
}

} // namespace orrery::window::testing

#include "TourTest.moc"
