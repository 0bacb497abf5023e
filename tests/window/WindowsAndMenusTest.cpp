#include "core/app/AppPaths.h"
#include "core/settings/Settings.h"
#include "customWin/HelpPages.h"
#include "customWin/mainWindow.h"
#include "customWin/tableView1/PlanetTable.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QDesktopServices>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <functional>

namespace orrery::window::testing {
namespace {

// A secondary window on screen in its frame: the desktop's title bar and rim come some time
// after the window itself, and until then its frame is only the window.
bool waitForFrame(QWidget* window) {
    return window != nullptr && QTest::qWaitForWindowExposed(window) &&
           QTest::qWaitFor([window] { return window->frameGeometry() != window->geometry(); });
}

// Opens a sheet from its menu item, ends it with `end` and opens it again straight away,
// before the ended sheet lets go of its contents; answers the new sheet once the old one is
// gone, or null.
QWidget* reopenAtOnce(QAction& item, const char* name, const std::function<void(QWidget&)>& end) {
    item.trigger();
    QWidget* first = waitForTopLevel(name);
    if (first == nullptr)
        return nullptr;
    const QPointer<QWidget> ended = first;
    end(*first);
    item.trigger();
    QWidget* second = visibleTopLevel(name);
    if (second == first || !QTest::qWaitFor([&] { return ended.isNull(); }))
        return nullptr;
    return second;
}

// Catches the page that the Help menu hands to the desktop.
class PageCatcher : public QObject {
    Q_OBJECT
public:
    PageCatcher() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~PageCatcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    Q_INVOKABLE void open(const QUrl& url) { opened = url; }
    QUrl opened;
};

} // namespace

class WindowsAndMenusTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void aSheetReopenedAtOnceShowsItsContents() {
        const MenuItems& menus = app().menus();
        QWidget* preferences =
            reopenAtOnce(*menus.appPreferences, "preferencesSheet",
                         [](QWidget& sheet) { QTest::keyClick(&sheet, Qt::Key_Escape); });
        QVERIFY(preferences != nullptr);
        // A sheet left empty has lost its contents to the one before it.
        auto* tabs = preferences->findChild<QTabWidget*>(QStringLiteral("tabView1p"));
        QVERIFY(tabs != nullptr && tabs->isVisible());
        tabs->setCurrentIndex(1);
        QVERIFY(tabs->currentWidget()->isVisible());
        QTest::mouseClick(&child<QPushButton>(*preferences, "closeButton1p"), Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("preferencesSheet") == nullptr);

        const auto createNamed = [](QWidget& sheet, const QString& name) {
            QTest::keyClicks(&child<QLineEdit>(sheet, "nameField3"), name);
            QTest::mouseClick(&child<QPushButton>(sheet, "createButton3"), Qt::LeftButton);
        };
        QWidget* creation = reopenAtOnce(*menus.planetCreate, "planetAddSheet",
                                         [&](QWidget& sheet) { createNamed(sheet, "Io"); });
        QVERIFY(creation != nullptr);
        const auto* name = creation->findChild<QLineEdit*>(QStringLiteral("nameField3"));
        QVERIFY(name != nullptr && name->isVisible());
        createNamed(*creation, QStringLiteral("Europa"));
        QTRY_COMPARE(app().state().planetArray.size(), std::size_t(2));
        QCOMPARE(app().state().planetArray.at(1).name, std::string("Europa"));
    }

    // The frame of the window as the person sees it, title bar included, comes back after
    // a close and after a restart; one stored on a screen that is gone comes onto this one.
    void secondaryWindowsComeBackWhereTheyWere() {
        // The menu items of the running controller, which a restart makes anew.
        const std::pair<QAction * MenuItems::*, const char*> windows[] = {
            {&MenuItems::windowGradation, "gradationWindow"},
            {&MenuItems::windowSearch, "searchWindow"}};
        QList<QRect> frames;
        for (const auto& [item, name] : windows) {
            const QPoint place(300 + 400 * static_cast<int>(frames.size()), 200);
            (app().menus().*item)->trigger();
            QWidget* window = waitForTopLevel(name);
            QVERIFY(waitForFrame(window));
            window->move(place);
            window->resize(360, 420);
            QTRY_COMPARE(window->frameGeometry().topLeft(), place);
            const QRect frame = window->frameGeometry();
            window->close();
            (app().menus().*item)->trigger();
            QTRY_COMPARE(window->frameGeometry(), frame);
            frames.append(frame);
        }

        app().window().close();
        start().restart();
        for (qsizetype i = 0; i < frames.size(); ++i) {
            (app().menus().*windows[i].first)->trigger();
            QWidget* window = waitForTopLevel(windows[i].second);
            QVERIFY(waitForFrame(window));
            QTRY_COMPARE(window->frameGeometry(), frames[i]);
        }

        app().window().close();
        Settings settings(AppPaths::inFolder(start().appFolder().toStdString()));
        settings.saveData0("5000", "Left1");
        start().restart();
        app().menus().windowGradation->trigger();
        QWidget* window = waitForTopLevel("gradationWindow");
        QVERIFY(waitForFrame(window));
        const QRect screen = window->screen()->availableGeometry();
        QTRY_VERIFY(screen.contains(window->frameGeometry()));
        QCOMPARE(window->frameGeometry().size(), frames[0].size());
    }

    void fullScreenFromOutsideHidesTheTitleBar() {
        mainWindow& window = app().window();
        const auto chromeShown = [&window](bool shown) {
            for (const char* name :
                 {"titleLabel0", "closeButton0", "minButton0", "maxButton0", "fullButton0"})
                if (child<QWidget>(window, name).isVisible() != shown)
                    return false;
            return true;
        };
        // As the window manager's own key would: not through the program's button or item.
        window.showFullScreen();
        QTRY_VERIFY_WITH_TIMEOUT(window.isFullScreen(), 20000);
        QVERIFY(chromeShown(false));
        QVERIFY(app().menus().windowFullScreen->isChecked());
        window.showNormal();
        QTRY_VERIFY_WITH_TIMEOUT(!window.isFullScreen(), 20000);
        QVERIFY(chromeShown(true));
        QVERIFY(!app().menus().windowFullScreen->isChecked());
    }

    void findItemsFindAndJumpToTheSelectedPlanet() {
        const MenuItems& menus = app().menus();
        QCOMPARE(menus.editFindreplace->text(), QStringLiteral("Find and Replace…"));
        QVERIFY(!menus.editFindreplace->isEnabled());
        QCOMPARE(menus.editFindjump->text(), QStringLiteral("Jump to Selection"));
        QCOMPARE(menus.editFindjump->shortcut(), QKeySequence(QStringLiteral("Ctrl+J")));
        PlanetTable& table = app().tableView1();
        QTest::keyClick(&table, Qt::Key_F, Qt::ControlModifier);
        QWidget* find = waitForTopLevel("searchWindow");
        QVERIFY(find != nullptr);
        find->close();

        for (int i = 0; i < 300; ++i)
            app().editor().createPlanet(std::to_string(1000 + i), "Moon " + std::to_string(i));
        app().reloadPlanets();
        QVERIFY(!menus.editFindjump->isEnabled());
        table.selectRow(250);
        QVERIFY(menus.editFindjump->isEnabled());
        table.verticalScrollBar()->setValue(0);
        const QModelIndex selected = table.model()->index(250, 0);
        QVERIFY(!table.viewport()->rect().intersects(table.visualRect(selected)));
        app().window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&app().window()));
        QTest::keyClick(&table, Qt::Key_J, Qt::ControlModifier);
        QVERIFY(table.viewport()->rect().contains(table.visualRect(selected)));
        table.selectRow(std::nullopt);
        QVERIFY(!menus.editFindjump->isEnabled());
    }

    void supportOpensThePageThatShipsWithThisVersion() {
        PageCatcher catcher;
        app().menus().helpSupport->trigger();
        QWidget* question = waitForTopLevel("questionSheet");
        QVERIFY(question != nullptr);
        QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1000"), Qt::LeftButton);
        QTRY_COMPARE(catcher.opened, supportPageAddress());
        QFile page(catcher.opened.toLocalFile());
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        QVERIFY(text.contains(QStringLiteral("version <span class=\"version\">" ORRERY_VERSION)));
        QVERIFY(text.contains(QStringLiteral("Data2.data")));
    }
};

std::unique_ptr<QObject> makeWindowsAndMenusTest() {
    return std::make_unique<WindowsAndMenusTest>();
}

} // namespace orrery::window::testing

#include "WindowsAndMenusTest.moc"
