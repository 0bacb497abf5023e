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

QMessageBox* openSheet() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("questionSheet") && window->isVisible())
            return qobject_cast<QMessageBox*>(window);
    return nullptr;
}

} // namespace

class MenuTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        app_ = std::make_unique<FreshStart>();
        app_->start();
    }
    void cleanup() { app_.reset(); }

    void everyMenuAndItemHasItsTitle() {
        for (QAction* item : app_->delegate().window().findChildren<QAction*>()) {
            if (item->isSeparator() || item->objectName().isEmpty())
                continue;
            QVERIFY2(!item->text().isEmpty(), qPrintable(item->objectName()));
        }
        QCOMPARE(app_->delegate().menus().appQuit->text(),
                 QStringLiteral("Quit %1").arg(app_->delegate().readAppname()));
    }

    void aHelpQuestionSwitchesTheGuardedItemsOffAndRestoresThem() {
        const QList<QAction*> guarded = app_->delegate().menus().guardedItems();
        QCOMPARE(guarded.size(), 19);
        const std::vector<bool> before = enabledStates(guarded);
        QVERIFY(std::count(before.begin(), before.end(), true) > 0);

        app_->delegate().menus().helpUserguide->trigger();
        QMessageBox* sheet = nullptr;
        QTRY_VERIFY((sheet = openSheet()) != nullptr);
        QCOMPARE(sheet->windowModality(), Qt::WindowModal);
        QCOMPARE(sheet->frameGeometry().top(), app_->delegate().window().frameGeometry().top() + 25);
        QCOMPARE(enabledStates(guarded), std::vector<bool>(19, false));
        QTest::mouseClick(sheet->findChild<QPushButton*>(QStringLiteral("sheetButton1001")),
                          Qt::LeftButton);
        QTRY_VERIFY(openSheet() == nullptr);
        QCOMPARE(enabledStates(guarded), before);
    }

    void backgroundItemsKeepExactlyOneCheckMark() {
        const MenuItems& menus = app_->delegate().menus();
        menus.sceneColorItems[2]->trigger();
        menus.sceneColorItems[1]->trigger();
        int checked = 0;
        for (const QAction* item : menus.sceneColorItems)
            checked += item->isChecked() ? 1 : 0;
        QCOMPARE(checked, 1);
        QVERIFY(menus.sceneColorItems[1]->isChecked());
        QCOMPARE(app_->delegate().state().currentBackground, 1L);
        QCOMPARE(app_->delegate().screenview().currentColor(), 1L);
    }

    void hideAxesTwiceReturnsToTheStart() {
        QAction& item = *app_->delegate().menus().sceneHideaxes;
        screenView& backdrop = app_->delegate().screenview();
        QVERIFY(!item.isChecked() && backdrop.showsAxes() && !app_->delegate().state().axesHiden);
        item.trigger();
        QVERIFY(item.isChecked() && !backdrop.showsAxes() && app_->delegate().state().axesHiden);
        item.trigger();
        QVERIFY(!item.isChecked() && backdrop.showsAxes() && !app_->delegate().state().axesHiden);
    }

private:
    std::unique_ptr<FreshStart> app_;
};

std::unique_ptr<QObject> makeMenuTest() {
    return std::make_unique<MenuTest>();
}

} // namespace orrery::window::testing

#include "MenuTest.moc"
