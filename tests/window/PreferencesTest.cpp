#include "core/settings/Settings.h"
#include "customWin/mainWindow.h"
#include "customWin/preferences/FolderChoice.h"
#include "customWin/preferences/accessoryView1p.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

namespace orrery::window::testing {

class PreferencesTest : public FreshWindowSuite {
    Q_OBJECT

    QWidget& open() {
        app().menus().appPreferences->trigger();
        QWidget* sheet = visibleTopLevel("preferencesSheet");
        if (sheet == nullptr)
            qFatal("the Preferences sheet did not open");
        return *sheet;
    }

    void press(QWidget& sheet, const char* button) {
        QTest::mouseClick(&child<QPushButton>(sheet, button), Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("preferencesSheet") == nullptr);
    }

    // A click on the box itself: the row is wider than what takes clicks.
    static void tick(QCheckBox& box) {
        const bool was = box.isChecked();
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
        QCOMPARE(box.isChecked(), !was);
    }

    std::vector<std::string> stored(bool general) {
        Settings settings(app().settings().paths());
        general ? settings.readGeneral() : settings.readPreferences();
        return general ? settings.checkboxArray : settings.preferenceArray;
    }

    // Picks the menu's second item, as a person would, and waits for the folder panel.
    QDialog* chooseOtherFolder(QWidget& sheet) {
        auto& menu = child<QComboBox>(sheet, "systempopup1p");
        menu.setCurrentIndex(1);
        emit menu.activated(1);
        return waitForTopLevel<QDialog>("folderPanel");
    }

private slots:
    void openingGuardsTheMenusAndOpensOnce() {
        QVERIFY(app().menus().appPreferences->isEnabled());
        open();
        QVERIFY(app().state().isPreferencesOpen);
        QVERIFY(!app().menus().appPreferences->isEnabled());
        QVERIFY(!app().menus().fileOpen->isEnabled());
        app().openPreferences(); // a second opening does nothing
        int sheets = 0;
        for (QWidget* window : QApplication::topLevelWidgets())
            sheets +=
                window->objectName() == QLatin1String("preferencesSheet") && window->isVisible();
        QCOMPARE(sheets, 1);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!app().state().isPreferencesOpen);
        QVERIFY(app().menus().appPreferences->isEnabled());
        QVERIFY(app().menus().fileOpen->isEnabled());
    }

    void otherFolderCancelledOrChosen() {
        QWidget& sheet = open();
        auto& field = child<QLineEdit>(sheet, "openField1p");
        auto& menu = child<QComboBox>(sheet, "systempopup1p");
        const QString before = field.text();
        QVERIFY(!before.isEmpty());

        QDialog* panel = chooseOtherFolder(sheet);
        QVERIFY(panel != nullptr);
        panel->reject();
        QTRY_COMPARE(menu.currentIndex(), 0);
        QCOMPARE(field.text(), before);

        QTemporaryDir chosen;
        QVERIFY((panel = chooseOtherFolder(sheet)) != nullptr);
        chooseInPanel(*panel, chosen.path());
        QTRY_COMPARE(field.text(), chosen.path());
        QCOMPARE(menu.currentIndex(), 0);
        QCOMPARE(menu.itemText(0), QDir(chosen.path()).dirName());
        QCOMPARE(menu.count(), 2);

        QTest::mouseClick(&child<QPushButton>(sheet, "defaultButton1p"), Qt::LeftButton);
        QCOMPARE(field.text(), before);
        press(sheet, "closeButton1p");
    }

    void savedValuesComeBackAndClosedOnesDoNot() {
        QWidget& sheet = open();
        auto& slider = child<QSlider>(sheet, "compressSlider2p");
        QCOMPARE(slider.value(), 85);
        slider.setValue(40);
        QCOMPARE(child<QLabel>(sheet, "compressLabel2p").text(), QStringLiteral("40%"));
        child<QComboBox>(sheet, "exportPopup1p").setCurrentIndex(3);
        tick(child<QCheckBox>(sheet, "generalCheckbox03p"));
        press(sheet, "saveButton1p");
        QCOMPARE(stored(false)[3], std::string("40"));
        QCOMPARE(stored(false)[2], std::string("3"));
        const std::size_t deleteAtOnce = generalPosition(GeneralSwitch::deleteWithoutAsking);
        QCOMPARE(stored(true)[deleteAtOnce], std::string("1"));
        QCOMPARE(app().settings().checkboxArray[deleteAtOnce], std::string("1"));

        QWidget& again = open();
        QCOMPARE(child<QSlider>(again, "compressSlider2p").value(), 40);
        QCOMPARE(child<QComboBox>(again, "exportPopup1p").currentIndex(), 3);
        tick(child<QCheckBox>(again, "generalCheckbox03p"));
        tick(child<QCheckBox>(again, "generalCheckbox12p"));
        child<QSlider>(again, "compressSlider2p").setValue(10);
        press(again, "closeButton1p");
        QCOMPARE(stored(true)[deleteAtOnce], std::string("1"));
        QCOMPARE(stored(true)[generalPosition(GeneralSwitch::storedOnly12)], std::string("0"));

        QWidget& third = open();
        QVERIFY(child<QCheckBox>(third, "generalCheckbox03p").isChecked());
        QVERIFY(!child<QCheckBox>(third, "generalCheckbox12p").isChecked());
        QCOMPARE(child<QSlider>(third, "compressSlider2p").value(), 40);
        press(third, "closeButton1p");
    }
};

std::unique_ptr<QObject> makePreferencesTest() {
    return std::make_unique<PreferencesTest>();
}

} // namespace orrery::window::testing

#include "PreferencesTest.moc"
