#include "bench/documents/ExportRuns.h"

#include "bench/documents/Panels.h"
#include "bench/documents/SheetWatch.h"
#include "bench/documents/WorkReport.h"
#include "bench/table/FreshWindow.h"
#include "core/export/ExportChoices.h"
#include "core/export/ExportPicture.h"
#include "core/settings/SettingsReaders.h"
#include "customWin/headerView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "imageio/ImageFile.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QTest>

#include <cstdio>

namespace orrery::bench {
namespace {

constexpr int kRuns = 3;
constexpr QSize kDocument(1920, 1080);

// Typed into the header's size fields, each confirmed with Return, with the window at the
// screen's top-left corner so that as much of it as can shows.
bool useDocumentSize(window::AppDelegate& app) {
    window::headerView& header = app.window().content().header();
    for (auto [field, side] : {std::pair{&header.widthField1(), kDocument.width()},
                               std::pair{&header.heightField1(), kDocument.height()}}) {
        field->setText(QString::number(side));
        QTest::keyClick(field, Qt::Key_Return);
    }
    app.window().move(app.window().screen()->availableGeometry().topLeft());
    return waitUntil([&] { return app.sceneview().size() == kDocument; });
}

struct WindowExport {
    SheetWork work;
    float compression = 0.0f; // as the panel's slider gave it
};

// The whole export as a person makes it; timed from the panel's Save until the file is
// written and the window says so.
std::optional<WindowExport> exportInWindow(window::AppDelegate& app, int row, const QString& path) {
    app.FileExport1();
    QWidget* question = waitForSheet(app.window(), "questionSheet");
    auto* formats =
        question ? question->findChild<QComboBox*>(QStringLiteral("exportPopup1")) : nullptr;
    auto* next =
        question ? question->findChild<QPushButton*>(QStringLiteral("sheetButton1000")) : nullptr;
    if (formats == nullptr || next == nullptr)
        return std::nullopt;
    formats->setCurrentIndex(row);
    next->click();
    QFileDialog* panel = waitForSavePanel(app.window());
    if (panel == nullptr || !typeFileName(*panel, path))
        return std::nullopt;
    const auto* slider = panel->findChild<QSlider*>(QStringLiteral("compressSlider2"));
    const float compression =
        compressionFactor(slider != nullptr ? slider->value() : kDefaultCompression);
    const std::optional<SheetWork> work = SheetWatch(app).run([&] { pressSave(*panel); });
    if (!work || alertShows(app.window()) || !QFile::exists(path))
        return std::nullopt;
    return WindowExport{*work, compression};
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct FormatFigures {
    std::vector<SheetWork> window;
    std::vector<double> encoder;
    bool sameFile = false;
};

bool exportFormat(FreshWindow& fresh, int row, const Image& picture, FormatFigures& figures) {
    window::AppDelegate& app = fresh.app();
    const ExportFormatInfo& info = kExportFormats[static_cast<std::size_t>(row)];
    const QString suffix =
        QString::fromUtf8(info.fileType.data(), static_cast<qsizetype>(info.fileType.size()));
    for (int run = 0; run < kRuns; ++run) {
        const QString stem = fresh.folder() + QStringLiteral("/picture-%1-").arg(run);
        const QString windowPath = stem + QStringLiteral("window.") + suffix;
        const QString encoderPath = stem + QStringLiteral("encoder.") + suffix;
        const std::optional<WindowExport> exported = exportInWindow(app, row, windowPath);
        if (!exported)
            return false;
        const Clock::time_point start = Clock::now();
        if (!imageio::writeImageFile(picture, encoderPath.toStdString(), info.format,
                                     exported->compression)
                 .empty())
            return false;
        figures.encoder.push_back(millisecondsSince(start));
        figures.window.push_back(exported->work);
        figures.sameFile = contents(windowPath) == contents(encoderPath);
    }
    return true;
}

} // namespace

bool reportExports(FreshWindow& fresh) {
    window::AppDelegate& app = fresh.app();
    if (!useDocumentSize(app)) {
        std::fprintf(stderr, "bench_documents: the document area did not become 1920 x 1080\n");
        return false;
    }
    // The picture the export writes: the scene read back, without the background, which the
    // question offers only once a background colour is chosen.
    std::vector<double> readBacks;
    std::optional<Image> scene;
    for (int run = 0; run < kRuns; ++run) {
        const Clock::time_point start = Clock::now();
        scene = app.sceneview().imageFromSceneKitView(app.sceneview().size());
        readBacks.push_back(millisecondsSince(start));
    }
    if (!scene) {
        std::fprintf(stderr, "bench_documents: the scene could not be read back\n");
        return false;
    }
    const Image picture = exportPicture(*scene, app.state().currentBackground, false);
    const Spread readBack = spread(readBacks);
    std::printf("  %d x %d picture; the window reads the scene back from the renderer in "
                "%.1f ms (%.1f)%s\n",
                picture.width, picture.height, readBack.median, readBack.best,
                fresh.fits() ? "" : " (the window does not fit on the screen)");
    printWorkTitle("format", "encoder ms (best)    added   same file");
    for (int row = 0; row < static_cast<int>(kExportFormats.size()); ++row) {
        FormatFigures figures;
        const std::string name(kExportFormats[static_cast<std::size_t>(row)].name);
        if (!exportFormat(fresh, row, picture, figures)) {
            std::fprintf(stderr, "bench_documents: the %s export failed\n", name.c_str());
            return false;
        }
        const Spread encoder = spread(figures.encoder);
        char more[80];
        std::snprintf(more, sizeof more, "%8.1f (%6.1f) %8.1f   %s", encoder.median, encoder.best,
                      timeSpread(figures.window).median - encoder.median,
                      figures.sameFile ? "yes" : "no");
        printWork(name, figures.window, more);
    }
    return true;
}

} // namespace orrery::bench
