#include "customWin/mainWindow.h"
#include "customWin/screenView.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace orrery::window::testing {
namespace {

std::vector<bool> enabledStates(const QList<QAction*>& items) {
    std::vector<bool> states;
    for (const QAction* item : items)
        states.push_back(item->isEnabled());
    return states;
}

} // namespace

class MenuTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void everyMenuAndItemHasItsTitle() {
        for (QAction* item : app().window().findChildren<QAction*>()) {
            if (item->isSeparator() || item->objectName().isEmpty())
                continue;
            QVERIFY2(!item->text().isEmpty(), qPrintable(item->objectName()));
        }
        QCOMPARE(app().menus().appQuit->text(), QStringLiteral("Quit %1").arg(app().readAppname()));
    }

    void aHelpQuestionSwitchesTheGuardedItemsOffAndRestoresThem() {
        const QList<QAction*> guarded = app().menus().guardedItems();
        QCOMPARE(guarded.size(), 22);
        const std::vector<bool> before = enabledStates(guarded);
        QVERIFY(std::count(before.begin(), before.end(), true) > 0);

        app().menus().helpUserguide->trigger();
        QMessageBox* sheet = nullptr;
        QVERIFY((sheet = waitForTopLevel<QMessageBox>("questionSheet")) != nullptr);
        QCOMPARE(sheet->windowModality(), Qt::WindowModal);
        QCOMPARE(sheet->frameGeometry().top(), app().window().frameGeometry().top() + 25);
        QCOMPARE(enabledStates(guarded), std::vector<bool>(22, false));
        QTest::mouseClick(sheet->findChild<QPushButton*>(QStringLiteral("sheetButton1001")),
                          Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("questionSheet") == nullptr);
        QCOMPARE(enabledStates(guarded), before);
    }

    void backgroundItemsKeepExactlyOneCheckMark() {
        const MenuItems& menus = app().menus();
        menus.sceneColorItems[2]->trigger();
        menus.sceneColorItems[1]->trigger();
        int checked = 0;
        for (const QAction* item : menus.sceneColorItems)
            checked += item->isChecked() ? 1 : 0;
        QCOMPARE(checked, 1);
        QVERIFY(menus.sceneColorItems[1]->isChecked());
        QCOMPARE(app().state().currentBackground, 1L);
        QCOMPARE(app().screenview().currentColor(), 1L);
    }

    void hideAxesTwiceReturnsToTheStart() {
        QAction& item = *app().menus().sceneHideaxes;
        screenView& backdrop = app().screenview();
        QVERIFY(!item.isChecked() && backdrop.showsAxes() && !app().state().axesHiden);
        item.trigger();
        QVERIFY(item.isChecked() && !backdrop.showsAxes() && app().state().axesHiden);
        item.trigger();
        QVERIFY(!item.isChecked() && backdrop.showsAxes() && !app().state().axesHiden);
    }
};

std::unique_ptr<QObject> makeMenuTest() {
    return std::make_unique<MenuTest>();
}

} // namespace orrery::window::testing

#include "MenuTest.moc"
