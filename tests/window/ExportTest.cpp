#include "core/export/ExportPicture.h"
#include "core/export/PackageScene.h"
#include "core/package/EmbeddedSystem.h"
#include "core/package/ProjectSettings.h"
#include "customWin/AnimationPreview.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "imageio/ImageFile.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QImageReader>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace orrery::window::testing {

class ExportTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void init() {
        FreshWindowSuite::init();
        app().editor().createPlanet("100", "Subject");
        app().reloadPlanets();
    }

    void theQuestionStartsOnTheFormatThePreferenceNames() {
        const std::pair<const char*, int> cases[] = {{"0", 4}, {"", 4}, {"3", 2}, {"1", 0}};
        for (const auto& [stored, row] : cases) {
            app().settings().editData1(2, stored);
            QWidget* question = ask();
            QVERIFY(question != nullptr);
            QCOMPARE(child<QComboBox>(*question, "exportPopup1").currentIndex(), row);
            QTest::mouseClick(&child<QPushButton>(*question, "sheetButton1001"), Qt::LeftButton);
            QTRY_VERIFY(visibleTopLevel("questionSheet") == nullptr);
        }
        QVERIFY(app().menus().fileExport->isEnabled());
    }

    void aTransparentBackgroundKeepsItsAlpha() {
        QWidget* question = ask();
        QVERIFY(question != nullptr);
        auto& include = child<QCheckBox>(*question, "includeButton1");
        QVERIFY(!include.isEnabled() && !include.isChecked());
        const QString png = exportAs(*question, 4);
        QVERIFY(!png.isEmpty());
        const QImage written(png);
        QVERIFY(written.hasAlphaChannel());
        QCOMPARE(written.size(), QSize(960, 540));
        QCOMPARE(written.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(written.pixelColor(480, 270).alpha(), 255);
        // The picture carries the system it shows.
        QVERIFY(runOrrery({"info", png}).contains("\"name\": \"Subject\""));
    }

    void theSceneLeavesAsGlb() {
        QTemporaryDir folder;
        const QString scene = folder.filePath(QStringLiteral("Subject.glb"));
        app().menus().fileExportScene->trigger();
        chooseInNextPanel("savePanel", scene);
        QTRY_VERIFY(contents(scene).startsWith("glTF"));
        QVERIFY(contents(scene).contains("\"name\":\"Subject\""));
    }

    void compressionZeroWritesAJpegAtEightyFive() {
        app().settings().editData1(3, "0");
        app().settings().editData2(generalPosition(GeneralSwitch::includeBackground), "1");
        app().setSceneBackground(2);
        QWidget* question = ask();
        QVERIFY(question != nullptr);
        QVERIFY(child<QCheckBox>(*question, "includeButton1").isChecked());
        const QString jpeg = exportAs(*question, 2, 85);
        QVERIFY(!jpeg.isEmpty());

        const std::optional<Image> scene =
            app().sceneview().imageFromSceneKitView(app().sceneview().size());
        QVERIFY(scene.has_value());
        const QString expected = folder_.filePath(QStringLiteral("expected.jpg"));
        // The same picture, carrying the same system.
        const DocumentSettings& settings = app().editor().document();
        const ProjectDocument system =
            projectDocument(app().sceneview().scene(), app().state().planetArray, settings.width,
                            settings.height, settings.background, app().state().lightColor);
        QCOMPARE(imageio::writeImageFile(
                     exportPicture(*scene, 2, true), expected.toStdString(), ExportFormat::jpeg,
                     0.85f, systemTextFields(openedProject(system), ExportFormat::jpeg)),
                 std::string());
        QCOMPARE(contents(jpeg), contents(expected));
    }

    void printingToAFileGivesOneBlankPage() {
        const QString pdf = folder_.filePath(QStringLiteral("page.pdf"));
        QPrinter& printer = app().printer();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        app().menus().filePrint->trigger();
        QPrintDialog* dialog = nullptr;
        QVERIFY((dialog = waitForTopLevel<QPrintDialog>("printDialog")) != nullptr);
        dialog->accept();
        QTRY_VERIFY(QFile::exists(pdf));
        const QByteArray document = contents(pdf);
        QCOMPARE(document.count("/Type /Page\n") + document.count("/Type /Page\r") +
                     document.count("/Type /Page/") + document.count("/Type /Page>"),
                 1);
    }

    void anAnimationIsWrittenAndItsChoicesAreRemembered() {
        QWidget* sheet = animationSheet();
        QVERIFY(sheet != nullptr);
        // The sheet holds the menus, both export items alike.
        QVERIFY(!app().menus().fileExport->isEnabled());
        QVERIFY(!app().menus().fileExportAnimation->isEnabled());
        child<QSpinBox>(*sheet, "animationFramesField").setValue(4);
        child<QDoubleSpinBox>(*sheet, "animationScaleField").setValue(0.25);
        // The preview turns in the sheet.
        auto& preview = child<AnimationPreview>(*sheet, "animationPreview");
        QTRY_VERIFY(preview.frameCount() == 4);
        const QString gif = folder_.filePath(QStringLiteral("spin.gif"));
        saveAnimation(*sheet, gif);
        QTRY_VERIFY(QFile::exists(gif) && visibleTopLevel("progressSheet") == nullptr);
        QImageReader reader(gif);
        QCOMPARE(reader.imageCount(), 4);
        QCOMPARE(reader.size(), QSize(240, 135));
        QVERIFY(app().menus().fileExportAnimation->isEnabled());

        QVERIFY((sheet = animationSheet()) != nullptr);
        QCOMPARE(child<QSpinBox>(*sheet, "animationFramesField").value(), 4);
        QCOMPARE(child<QDoubleSpinBox>(*sheet, "animationScaleField").value(), 0.25);
        QTest::mouseClick(&child<QPushButton>(*sheet, "sheetButton1001"), Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("animationSheet") == nullptr);
    }

    void cancellingAnAnimationLeavesNoFile() {
        QWidget* sheet = animationSheet();
        QVERIFY(sheet != nullptr);
        child<QSpinBox>(*sheet, "animationFramesField").setValue(720);
        child<QDoubleSpinBox>(*sheet, "animationScaleField").setValue(1.0);
        saveAnimation(*sheet, folder_.filePath(QStringLiteral("long.webm")));
        QWidget* progress = nullptr;
        QVERIFY((progress = waitForTopLevel("progressSheet")) != nullptr);
        // Cancel once the count of frames shows the work under way.
        QTRY_VERIFY(!child<QLabel>(*progress, "progressDetail").text().isEmpty());
        QTest::mouseClick(&child<QPushButton>(*progress, "progressCancel"), Qt::LeftButton);
        QTRY_VERIFY(visibleTopLevel("progressSheet") == nullptr);
        // Neither the video nor its hidden temporary is left.
        QCOMPARE(QDir(folder_.path())
                     .entryList({QStringLiteral("*long.webm*")}, QDir::Files | QDir::Hidden),
                 QStringList());
        QVERIFY(visibleTopLevel("questionSheet") == nullptr); // no failure to report
    }

private:
    // Each helper gives null or an empty path when what it waits for does not come; the
    // test's own check of that fails the test, never the suite.
    QWidget* animationSheet() {
        // The keys reach the window's shortcuts only once it is active again after a sheet.
        app().window().activateWindow();
        if (!QTest::qWaitForWindowActive(&app().window()))
            return nullptr;
        QTest::keyClick(&app().window(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        return waitForTopLevel("animationSheet");
    }

    static void saveAnimation(QWidget& sheet, const QString& path) {
        QTest::mouseClick(&child<QPushButton>(sheet, "sheetButton1000"), Qt::LeftButton);
        chooseInNextPanel("savePanel", path);
    }

    QWidget* ask() {
        app().menus().fileExport->trigger();
        return waitForTopLevel("questionSheet");
    }

    // Picks the format row, goes on to the panel and saves there; returns the file, or
    // nothing when the panel does not come, offers another compression or writes nothing.
    QString exportAs(QWidget& question, int row, int expectedSlider = -1) {
        child<QComboBox>(question, "exportPopup1").setCurrentIndex(row);
        QTest::mouseClick(&child<QPushButton>(question, "sheetButton1000"), Qt::LeftButton);
        auto* panel = waitForTopLevel<QFileDialog>("savePanel");
        if (panel == nullptr)
            return {};
        const auto* slider = panel->findChild<QSlider*>(QStringLiteral("compressSlider2"));
        if (expectedSlider >= 0 && (slider == nullptr || slider->value() != expectedSlider))
            return {};
        const QString path =
            folder_.filePath(QStringLiteral("picture.%1").arg(panel->defaultSuffix()));
        chooseInPanel(*panel, path);
        const bool written = QTest::qWaitFor(
            [&path] { return QFile::exists(path) && visibleTopLevel("progressSheet") == nullptr; });
        return written ? path : QString();
    }

    QTemporaryDir folder_;
};

std::unique_ptr<QObject> makeExportTest() {
    return std::make_unique<ExportTest>();
}

} // namespace orrery::window::testing

#include "ExportTest.moc"
