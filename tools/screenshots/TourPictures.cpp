// The pictures of the introduction tour, one a page, each around what its page explains.
// They are shown in a 16:10 frame, so each is cut from the screen at 16:10.
#include "customWin/ProgressSheet.h"
#include "customWin/Strings.h"
#include "customWin/headerView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/PlanetTable.h"
#include "tools/screenshots/Shots.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>

namespace orrery::screenshots {
namespace {

// The tour shows its pictures at 560 x 350; none is cut smaller, so none is enlarged. They
// are kept at up to twice that, so that they stay sharp on a screen of scale 2.
constexpr QSize kSmallestPicture(560, 350);
constexpr QSize kLargestPicture = kSmallestPicture * 2;

// The smallest 16:10 area of the window around `focus` and a margin, kept on the window.
QRect aroundAt16By10(QRect focus, const QRect& window) {
    focus = focus.adjusted(-24, -24, 24, 24) & window;
    QSize size = focus.size().expandedTo(kSmallestPicture);
    if (size.width() * 10 < size.height() * 16)
        size.setWidth(size.height() * 16 / 10);
    else
        size.setHeight(size.width() * 10 / 16);
    size = size.boundedTo(window.size());
    QRect area(QPoint(0, 0), size);
    area.moveCenter(focus.center());
    area.moveLeft(qBound(window.left(), area.left(), window.right() - area.width() + 1));
    area.moveTop(qBound(window.top(), area.top(), window.bottom() - area.height() + 1));
    return area;
}

class TourShots {
public:
    TourShots(window::AppDelegate& app, const QString& out) : app_(app), dir_(out) {}

    // The area around a widget (or the union of several) as one page's picture.
    void around(const QList<QWidget*>& widgets, const char* name) {
        settle();
        QRect focus;
        for (QWidget* widget : widgets)
            focus |= QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
        QRect screen = app_.window().frameGeometry();
        if (QWidget* popup = QApplication::activePopupWidget())
            screen |= popup->frameGeometry();
        QPixmap picture = grab(aroundAt16By10(focus, screen));
        if (picture.width() > kLargestPicture.width() ||
            picture.height() > kLargestPicture.height())
            picture =
                picture.scaled(kLargestPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        save(picture, dir_.filePath(QLatin1String(name) + ".png"));
    }

    // The visible widget of that name: the table may still hold hidden editors of rows
    // that are gone.
    template <typename T> T* find(const char* name) {
        for (T* widget : app_.window().findChildren<T*>(QLatin1String(name)))
            if (widget->isVisible())
                return widget;
        return nullptr;
    }

private:
    window::AppDelegate& app_;
    QDir dir_;
};

} // namespace

void makeTourPictures(window::AppDelegate& app, const QString& out, const QString& package) {
    TourShots shots(app, out);
    QWidget& window = app.window();
    window::mainView& content = app.window().content();

    openSystem(app, package);
    app.tableView1().selectRow(0);
    shots.around({&window}, "01_intro");

    app.createNewSystem2();
    app.openPlanetCreation();
    QTest::keyClicks(shots.find<QLineEdit>("nameField3"), QStringLiteral("Jupiter"));
    shots.around({shots.find<QWidget>("planetAddSheet"), &content.header()}, "02_plottingPlanet");
    QTest::keyClick(shots.find<QLineEdit>("nameField3"), Qt::Key_Return);

    shots.around({&content.documentArea()}, "03_3axes");

    shots.around({&content.header().widthField1(), &content.header().heightField1()}, "04_docsize");

    createSmallSystem(app);
    shots.find<QToolButton>("surfaceMetalPopupButton1_04")->click();
    shots.around({openPopup()}, "06_surface");
    closePopup();
    shots.find<QToolButton>("styleMetalPopupButton1_03")->click();
    shots.around({openPopup()}, "07_style");
    closePopup();

    app.show1bClicked();
    shots.around({shots.find<QWidget>("popOver5"), shots.find<QWidget>("cameraButton5")},
                 "08_camera");
    app.show1bClicked();
    app.show1Clicked();
    shots.around({shots.find<QWidget>("popOver4"), shots.find<QWidget>("lightButton4")}, "09_sun");
    app.show1Clicked();

    app.FileExport1();
    shots.around({shots.find<QWidget>("questionSheet")}, "10_export");
    if (QWidget* sheet = QApplication::activeModalWidget())
        sheet->close();

    auto* progress = new window::ProgressSheet(window::text("saveDocumentLabel"), window);
    progress->begin();
    shots.around({progress}, "11_progress");
    progress->end();

    QMenu& help = *app.menus().helpMenu;
    QMenuBar& bar = *shots.find<QMenuBar>("menuBar");
    help.popup(bar.mapToGlobal(bar.actionGeometry(help.menuAction()).bottomLeft()));
    shots.around({&help, &bar}, "12_help");
    help.close();

    // A planet on its way: pressed, moved, and the shot taken before it is let go.
    window::sceneView& scene = app.sceneview();
    QWindow* surface = &scene.surface();
    const QPoint earth = scene.rect().center() + QPoint(40, 0);
    QTest::mousePress(surface, Qt::LeftButton, {}, earth);
    for (int step = 1; step <= 10; ++step)
        QTest::mouseMove(surface, earth + QPoint(0, -8 * step));
    shots.around({&scene, &app.tableView1()}, "05_moveplanet");
    QTest::mouseRelease(surface, Qt::LeftButton, {}, earth + QPoint(0, -80));
}

} // namespace orrery::screenshots
