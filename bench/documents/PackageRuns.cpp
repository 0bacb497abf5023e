#include "bench/documents/PackageRuns.h"

#include "bench/documents/Panels.h"
#include "bench/documents/SheetWatch.h"
#include "bench/documents/WorkReport.h"
#include "bench/table/FreshWindow.h"
#include "core/export/PackageScene.h"
#include "core/package/ProjectPackage.h"
#include "customWin/headerView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"

#include <QFileDialog>
#include <QLineEdit>

#include <cstdio>

namespace orrery::bench {
namespace {

constexpr int kRuns = 3;

// Save As: from the panel's Save until the package is written and the window says so.
std::optional<SheetWork> saveAs(window::AppDelegate& app, const QString& path) {
    app.saveAsProject1();
    QFileDialog* panel = waitForSavePanel(app.window());
    if (panel == nullptr || !typeFileName(*panel, path))
        return std::nullopt;
    const std::optional<SheetWork> work = SheetWatch(app).run([&] { pressSave(*panel); });
    if (alertShows(app.window()) || app.state().projectpath != path.toStdString())
        return std::nullopt;
    return work;
}

// Save over the package the window came from: no panel.
std::optional<SheetWork> saveOver(window::AppDelegate& app) {
    const std::optional<SheetWork> work = SheetWatch(app).run([&] { app.saveProject1(); });
    return alertShows(app.window()) ? std::nullopt : work;
}

// Open, from the request until the scene has painted the opened system whole.
std::optional<SheetWork> openPackage(window::AppDelegate& app, const QString& path, int planets) {
    SheetWatch watch(app);
    Arrival shown(&app.sceneview(), &window::sceneView::framePainted,
                  [&] { return watch.finished(); });
    const std::optional<SheetWork> work = watch.run([&] { app.openFiles({path}); }, &shown);
    if (!work || alertShows(app.window()) ||
        app.state().planetArray.size() != static_cast<std::size_t>(planets))
        return std::nullopt;
    return work;
}

// The core alone on the same system: the document built as Save builds it on the main
// thread, then written, then read back, each as the worker does it.
struct CoreTimes {
    double build = 0.0;
    double write = 0.0;
    double read = 0.0;
};

std::optional<CoreTimes> coreAlone(window::AppDelegate& app, const QString& path) {
    CoreTimes times;
    window::headerView& header = app.window().content().header();
    Clock::time_point start = Clock::now();
    const ProjectDocument document = projectDocument(
        app.sceneview().scene(), app.state().planetArray, header.widthField1().text().toStdString(),
        header.heightField1().text().toStdString(), app.state().currentBackground,
        app.state().lightColor);
    times.build = millisecondsSince(start);
    std::string error;
    start = Clock::now();
    if (!writeProjectPackage(path.toStdString(), document, error))
        return std::nullopt;
    times.write = millisecondsSince(start);
    OpenedProject project;
    start = Clock::now();
    if (!readProjectPackage(path.toStdString(), project, error))
        return std::nullopt;
    times.read = millisecondsSince(start);
    return times;
}

} // namespace

bool reportPackages(FreshWindow& fresh, int planets) {
    window::AppDelegate& app = fresh.app();
    const QString path = fresh.folder() + QStringLiteral("/Planets.kvx");
    const std::optional<SheetWork> first = saveAs(app, path);
    if (!first) {
        std::fprintf(stderr, "bench_documents: Save As of %d planets failed\n", planets);
        return false;
    }
    std::vector<SheetWork> saves, opens;
    std::vector<double> shown, builds, writes, reads;
    for (int run = 0; run < kRuns; ++run) {
        const std::optional<SheetWork> saved = saveOver(app);
        const std::optional<SheetWork> opened = openPackage(app, path, planets);
        const std::optional<CoreTimes> core =
            coreAlone(app, fresh.folder() + QStringLiteral("/Core%1.kvx").arg(run));
        if (!saved || !opened || !core) {
            std::fprintf(stderr, "bench_documents: run %d with %d planets failed\n", run + 1,
                         planets);
            return false;
        }
        saves.push_back(*saved);
        opens.push_back(*opened);
        shown.push_back(opened->shownMs);
        builds.push_back(core->build);
        writes.push_back(core->write);
        reads.push_back(core->read);
    }
    printWorkTitle(std::to_string(planets) + " planets");
    printWork("Save As, from the panel's Save", {*first});
    printWork("Save", saves);
    printWork("Open", opens);
    const Spread shownMs = spread(shown);
    std::printf("    %-32s %8.1f (%6.1f)\n", "Open, to the scene painted", shownMs.median,
                shownMs.best);
    const Spread build = spread(builds), write = spread(writes), read = spread(reads);
    std::printf("    core alone: document built %.1f ms, written %.1f ms, read %.1f ms\n",
                build.median, write.median, read.median);
    return true;
}

} // namespace orrery::bench
