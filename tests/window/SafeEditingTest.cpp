#include "customWin/Sheet.h"
#include "customWin/mainWindow.h"
#include "customWin/tableView1/PlanetTable.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

// The paths by which an editor could lose or misplace a person's work: save panels, the
// unsaved mark, undo, and sizes that only a package can carry.
namespace orrery::window::testing {
namespace {

QJsonObject packageInfo(const QString& package) {
    return QJsonDocument::fromJson(runOrrery({"info", package})).object();
}

} // namespace

class SafeEditingTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void afterUndoATypedValueLandsInTheRowTypedIn() {
        createPlanets(2);
        PlanetTable& table = app().tableView1();
        clickRow(0);
        typeInto(*field(PlanetColumn::radius), "30", Qt::Key_Return);
        QCOMPARE(record(0).radius, std::string("30"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(record(0).radius, std::string("24"));

        clickRow(1);
        QCOMPARE(table.selectedRow(), std::optional<std::size_t>(1));
        // Only the selected row has live controls.
        const auto radiusFields = table.findChildren<QLineEdit*>(QStringLiteral("textField1_08"));
        QCOMPARE(std::count_if(radiusFields.begin(), radiusFields.end(),
                               [](const QLineEdit* f) { return f->isVisible(); }),
                 1);
        typeInto(*field(PlanetColumn::radius), "40", Qt::Key_Return);
        QCOMPARE(record(1).radius, std::string("40"));
        QCOMPARE(record(0).radius, std::string("24"));
    }

    void undoAfterDeletingBringsThePlanetBackAndTheItemsSayWhat() {
        createPlanets(2);
        QVERIFY(!app().menus().editRedo->isEnabled());
        clickRow(1);
        QTest::mouseClick(&child<QPushButton>(app().window(), "deletePlanetButton1"),
                          Qt::LeftButton);
        answer(kFirstButton);
        QCOMPARE(app().state().planetArray.size(), std::size_t(1));
        // The keyboard is in the table, not in a field that would take Ctrl+Z.
        QCOMPARE(QApplication::focusWidget(), &app().tableView1());
        QCOMPARE(app().menus().editUndo->text(), QStringLiteral("Undo Delete Planet"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(app().state().planetArray.size(), std::size_t(2));
        QCOMPARE(app().menus().editRedo->text(), QStringLiteral("Redo Delete Planet"));
        // The delete button follows the selection as it now is.
        QCOMPARE(child<QPushButton>(app().window(), "deletePlanetButton1").isEnabled(),
                 app().tableView1().selectedRow().has_value());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z,
                        Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(app().state().planetArray.size(), std::size_t(1));
    }

    void aCellCommittedUnchangedAndTheSameChoiceLeaveTheDocumentUnmarked() {
        createPlanets(1);
        saveAs(folder_.filePath(QStringLiteral("Calm")));
        clickRow(0);
        QLineEdit* radius = field(PlanetColumn::radius);
        radius->setFocus();
        for (Qt::Key key : {Qt::Key_Left, Qt::Key_Tab, Qt::Key_Return})
            QTest::keyClick(radius, key);
        app().chooseBackground(0);
        QVERIFY(!title().contains(QLatin1Char('*')));
        QCOMPARE(app().menus().editUndo->text(), QStringLiteral("Undo Create Planet"));
    }

    void theBackgroundIsOneStepAndUndoingItIsUnmodifiedAgain() {
        app().menus().sceneColorItems[3]->trigger();
        QVERIFY(title().endsWith(QLatin1Char('*')));
        QCOMPARE(app().menus().editUndo->text(), QStringLiteral("Undo Background"));
        app().menus().editUndo->trigger();
        QCOMPARE(app().state().currentBackground, 0L);
        QVERIFY(app().menus().sceneColorItems[0]->isChecked());
        QVERIFY(!title().contains(QLatin1Char('*')));
        app().menus().editRedo->trigger();
        QCOMPARE(app().state().currentBackground, 3L);
        // A resize of the window is a change of the picture's size.
        app().menus().editUndo->trigger();
        QTRY_VERIFY(!app().window().resizeIsOwn());
        app().window().showMaximized();
        QTRY_VERIFY(title().endsWith(QLatin1Char('*')));
        QCOMPARE(app().menus().editUndo->text(), QStringLiteral("Undo Document Size"));
    }

    void saveAsAddsTheExtensionToAnyNameAndAsksBeforeReplacing() {
        createPlanets(2);
        saveAs(folder_.filePath(QStringLiteral("Earth 2.0")));
        const QString package = folder_.filePath(QStringLiteral("Earth 2.0.kvx"));
        QCOMPARE(QString::fromStdString(app().document().path()), package);
        QVERIFY(title().endsWith(QStringLiteral(": Earth 2.0")));
        QCOMPARE(packageInfo(package)["planets"].toArray().size(), 2);

        // Onto the existing package, by name: asked, and Cancel writes nothing.
        const QByteArray before = contents(package + QStringLiteral("/data1.xml"));
        app().editor().createPlanet("3000", "Third");
        app().reloadPlanets();
        saveAs(folder_.filePath(QStringLiteral("Earth 2.0.kvx")), false);
        answer(kFirstButton + 1);
        QCOMPARE(contents(package + QStringLiteral("/data1.xml")), before);
        QVERIFY(title().endsWith(QLatin1Char('*')));
        // A name inside a package is saved beside it, never into it.
        saveAs(package + QStringLiteral("/Inner"), false);
        QTRY_VERIFY(QFile::exists(folder_.filePath(QStringLiteral("Inner.kvx"))));
        QVERIFY(!QFile::exists(package + QStringLiteral("/Inner.kvx")));
    }

    void aDoubleClickedPackageIsChosenNotEnteredInEitherPanel() {
        createPlanets(1);
        const QString package = folder_.filePath(QStringLiteral("Kept.kvx"));
        saveAs(package);
        createPlanets(2);
        app().menus().fileSaveAs->trigger();
        doubleClickInPanel("savePanel", QStringLiteral("Kept.kvx"));
        answer(kFirstButton); // replace it
        QTRY_VERIFY(!app().hasUnsavedChanges() && !hasProgress());
        QCOMPARE(packageInfo(package)["planets"].toArray().size(), 3);

        app().menus().fileNew->trigger();
        answer(kFirstButton);
        app().menus().fileOpen->trigger();
        doubleClickInPanel("openPanel", QStringLiteral("Kept.kvx"));
        QTRY_COMPARE(app().state().planetArray.size(), std::size_t(3));
    }

    void afterNewTheQuestionOffersSaveAsAndNeverWritesTheOldPackage() {
        createPlanets(1);
        const QString package = folder_.filePath(QStringLiteral("Old.kvx"));
        saveAs(package);
        const QByteArray before = contents(package + QStringLiteral("/data1.xml"));
        app().menus().fileNew->trigger();
        answer(kFirstButton);
        QCOMPARE(app().state().planetArray.size(), std::size_t(0));
        createPlanets(3);
        app().window().close();
        QWidget* question = nullptr;
        QVERIFY((question = waitForTopLevel("questionSheet")) != nullptr);
        QCOMPARE(child<QPushButton>(*question, "sheetButton1000").text(),
                 QStringLiteral("Save As…"));
        QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1000"), Qt::LeftButton);
        QFileDialog* panel = nullptr;
        QVERIFY((panel = waitForTopLevel<QFileDialog>("savePanel")) != nullptr);
        panel->reject();
        QTRY_VERIFY(visibleTopLevel("savePanel") == nullptr);
        QVERIFY(app().window().isVisible());
        QCOMPARE(contents(package + QStringLiteral("/data1.xml")), before);
    }

    void aSizeOnlyAPackageCarriesIsKeptShownExportedAndSaved() {
        const QString package = packageOfSize("401", "301");
        app().openFiles({package});
        QTRY_COMPARE(app().document().path(), package.toStdString());
        QCOMPARE(widthField().text(), QStringLiteral("401"));
        QCOMPARE(heightField().text(), QStringLiteral("301"));
        QVERIFY(!title().endsWith(QLatin1Char('*')));
        const QString picture = folder_.filePath(QStringLiteral("small.png"));
        exportPicture(picture);
        QCOMPARE(QImage(picture).size(), QSize(401, 301));
        saveAs(folder_.filePath(QStringLiteral("Again")));
        const QJsonObject document =
            packageInfo(folder_.filePath(QStringLiteral("Again.kvx")))["document"].toObject();
        QCOMPARE(document["width"].toString(), QStringLiteral("401"));
        QCOMPARE(document["height"].toString(), QStringLiteral("301"));

        app().openFiles({packageOfSize("6400", "6400")});
        QTRY_COMPARE(widthField().text(), QStringLiteral("6400"));
        auto& note = child<QLabel>(app().window(), "documentScaleNote");
        QTRY_VERIFY(note.isVisible() && note.text().startsWith(QStringLiteral("Shown at")));
    }

    void theMenusKeysReachTheMenusFromAFieldThatHasNoUseForThem() {
        createPlanets(1);
        clickRow(0);
        QLineEdit* name = field(PlanetColumn::name);
        name->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), name);
        QTest::keyClick(name, Qt::Key_E, Qt::ControlModifier); // a field's end of line
        answer(kFirstButton + 1);                              // the export question came; not now
        // Delete stays the field's own key.
        name->setCursorPosition(0);
        QTest::keyClick(name, Qt::Key_Delete);
        QCOMPARE(name->text(), QStringLiteral("lanet 1"));
        QCOMPARE(app().state().planetArray.size(), std::size_t(1));
    }

    // A person without a mouse: every step below is a key.
    void theKeyboardAloneBuildsAndEditsASystem() {
        const auto press = [](int key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
        };
        // At start the keyboard is in the table.
        QTRY_COMPARE(QApplication::focusWidget(), &app().tableView1());
        for (const char* name : {"Alpha", "Beta"}) {
            press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
            QTRY_VERIFY(QApplication::focusWidget() != nullptr &&
                        QApplication::focusWidget()->objectName() == QStringLiteral("nameField3"));
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(name));
            press(Qt::Key_Return);
            QTRY_VERIFY(visibleTopLevel("planetAddSheet") == nullptr);
            QTRY_VERIFY(app().window().isActiveWindow());
            QTRY_COMPARE(QApplication::focusWidget(), &app().tableView1());
        }
        QCOMPARE(app().state().planetArray.size(), std::size_t(2));

        press(Qt::Key_Home, Qt::ControlModifier); // the first row
        const auto toColumn = [&](PlanetColumn column) {
            const int from = app().tableView1().currentIndex().column();
            const int to = static_cast<int>(column);
            for (int step = from; step != to; step += to > from ? 1 : -1)
                press(to > from ? Qt::Key_Right : Qt::Key_Left);
        };
        toColumn(PlanetColumn::radius);
        press(Qt::Key_Return);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("33"));
        press(Qt::Key_Return);
        press(Qt::Key_Escape); // back to the rows
        QCOMPARE(record(0).radius, std::string("33"));
        QCOMPARE(QApplication::focusWidget(), &app().tableView1());

        toColumn(PlanetColumn::state);
        press(Qt::Key_Space);
        QCOMPARE(record(0).state, std::string("0"));

        toColumn(PlanetColumn::style);
        press(Qt::Key_Return);
        QTRY_VERIFY(QApplication::focusWidget() != nullptr &&
                    QApplication::focusWidget()->objectName() == QStringLiteral("choice0"));
        press(Qt::Key_Down);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QCOMPARE(record(0).styleindex, std::string("2"));

        toColumn(PlanetColumn::color);
        press(Qt::Key_Return);
        QWidget* dialog = nullptr;
        QVERIFY((dialog = waitForTopLevel("colorDialog")) != nullptr);
        QLineEdit* html = nullptr;
        for (QLineEdit* field : dialog->findChildren<QLineEdit*>())
            if (field->objectName() != QStringLiteral("qt_spinbox_lineedit"))
                html = field;
        QVERIFY(html != nullptr);
        html->selectAll();
        QTest::keyClicks(html, QStringLiteral("#ff0000"));
        QTest::keyClick(html, Qt::Key_Return);
        QTRY_VERIFY(visibleTopLevel("colorDialog") == nullptr);
        QCOMPARE(record(0).color.red, 1.0);
        QCOMPARE(record(0).color.blue, 0.0);

        QTRY_COMPARE(QApplication::focusWidget(), &app().tableView1());
        // An edit takes Delete away until the selection changes: a Return too many never
        // deletes the planet just edited.
        press(Qt::Key_Down);
        press(Qt::Key_Up);
        press(Qt::Key_Delete);
        QWidget* question = nullptr;
        QVERIFY((question = waitForTopLevel("questionSheet")) != nullptr);
        QTRY_COMPARE(QApplication::activeWindow(), question);
        press(Qt::Key_Return);
        QTRY_COMPARE(app().state().planetArray.size(), std::size_t(1));
        QTRY_COMPARE(QApplication::focusWidget(), &app().tableView1());
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(app().state().planetArray.size(), std::size_t(2));
        QCOMPARE(record(0).name, std::string("Alpha"));
    }

private:
    const PlanetRecord& record(std::size_t row) { return app().state().planetArray.at(row); }
    QString title() { return child<QLabel>(app().window(), "titleLabel0").text(); }
    QLineEdit& widthField() { return child<QLineEdit>(app().window(), "widthField1"); }
    QLineEdit& heightField() { return child<QLineEdit>(app().window(), "heightField1"); }

    QLineEdit* field(PlanetColumn column) {
        return qobject_cast<QLineEdit*>(app().tableView1().control(column));
    }

    void createPlanets(int count) {
        for (int i = 0; i < count; ++i)
            app().editor().createPlanet(std::to_string(1000 + i),
                                        "Planet " + std::to_string(i + 1));
        app().reloadPlanets();
    }

    // A click on the row's name cell, as a person selects a planet.
    void clickRow(int row) {
        PlanetTable& table = app().tableView1();
        const QRect cell = table.visualRect(table.model()->index(row, 0));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
    }

    void answer(int button) {
        QWidget* question = nullptr;
        QVERIFY((question = waitForTopLevel("questionSheet")) != nullptr);
        QTest::mouseClick(
            &child<QPushButton>(*question, qPrintable(QStringLiteral("sheetButton%1").arg(button))),
            Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("questionSheet") != question);
    }

    // Save As through its panel, the name typed as a person types it.
    void saveAs(const QString& typed, bool waitForIt = true) {
        app().menus().fileSaveAs->trigger();
        chooseInNextPanel("savePanel", typed);
        if (waitForIt)
            QTRY_VERIFY(!hasProgress() && !app().hasUnsavedChanges());
    }

    void exportPicture(const QString& path) {
        app().menus().fileExport->trigger();
        answer(kFirstButton);
        chooseInNextPanel("savePanel", path);
        QTRY_VERIFY(QFile::exists(path) && !hasProgress());
    }

    // A double click on an entry of the panel's list, as a person picks a package.
    void doubleClickInPanel(const char* panelName, const QString& entry) {
        QFileDialog* panel = nullptr;
        QVERIFY((panel = waitForTopLevel<QFileDialog>(panelName)) != nullptr);
        panel->setDirectory(folder_.path());
        auto& list = child<QAbstractItemView>(*panel, "listView");
        QModelIndex item;
        QTRY_VERIFY((item = list.model()->index(0, 0, list.rootIndex())).isValid());
        for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row)
            if (list.model()->index(row, 0, list.rootIndex()).data().toString() == entry)
                item = list.model()->index(row, 0, list.rootIndex());
        QCOMPARE(item.data().toString(), entry);
        const QPoint centre = list.visualRect(item).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centre);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, centre);
        QTRY_VERIFY(visibleTopLevel(panelName) == nullptr);
    }

    static bool hasProgress() { return visibleTopLevel("progressSheet") != nullptr; }

    // A package with a planet and the document size given, made by the command line.
    QString packageOfSize(const char* width, const char* height) {
        QFile example(QStringLiteral(ORRERY_SOURCE_DIR "/examples/earth-and-moon.json"));
        example.open(QIODevice::ReadOnly);
        QJsonObject system = QJsonDocument::fromJson(example.readAll()).object();
        system["document"] = QJsonObject{{"width", width}, {"height", height}};
        const QString name = QStringLiteral("size-%1x%2").arg(width, height);
        QFile json(folder_.filePath(name + QStringLiteral(".json")));
        json.open(QIODevice::WriteOnly);
        json.write(QJsonDocument(system).toJson());
        json.close();
        const QString package = folder_.filePath(name + QStringLiteral(".kvx"));
        runOrrery({"convert", json.fileName(), package});
        return package;
    }

    QTemporaryDir folder_;
};

std::unique_ptr<QObject> makeSafeEditingTest() {
    return std::make_unique<SafeEditingTest>();
}

} // namespace orrery::window::testing

#include "SafeEditingTest.moc"
