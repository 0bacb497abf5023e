// The planet table with 1,000 and 100,000 planets in the program's window: filling it,
// moving the selection, and a radius typed into the selected row until the scene shows it.
// Prints the median (and best) of a few runs with the goal beside each; never fails on
// time. Needs an X server; planets show their surfaces when the surface folder is found
// (ORRERY_SURFACE_DIR, else the build's own):
//   xvfb-run -a -s "-screen 0 1920x1200x24" bench_table
#include "bench/table/FreshWindow.h"
#include "bench/table/SpreadPlanets.h"
#include "bench/table/Waiting.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/PlanetTable.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <cstdio>
#include <string>

namespace orrery::bench {
namespace {

constexpr int kRuns = 7;
constexpr double kGoalMs = 50.0;
constexpr int kGoalPlanets = 100000;

using Sample = std::optional<double>;

// A different row for every run, spread over the table.
std::size_t rowOfRun(int run, int planets) {
    return static_cast<std::size_t>((planets / 2 + run * (planets / 7 + 1)) % planets);
}

QWidget& tableViewport(window::AppDelegate& app) {
    return *app.tableView1().viewport();
}

// reloadPlanets, until the table has painted its rows.
Sample fill(window::AppDelegate& app) {
    Arrival painted(tableViewport(app));
    const Clock::time_point start = Clock::now();
    app.reloadPlanets();
    return painted.millisecondsFrom(start);
}

// A row selected, until the table has painted it with its live controls.
Sample select(window::AppDelegate& app, std::size_t row) {
    Arrival painted(tableViewport(app));
    const Clock::time_point start = Clock::now();
    app.tableView1().selectRow(row);
    return painted.millisecondsFrom(start);
}

// The title label repainted with nothing changed: what any repaint in the window costs
// besides the widget's own painting, for comparison.
Sample titleRepaint(window::AppDelegate& app) {
    auto* title = app.window().findChild<QLabel*>(QStringLiteral("titleLabel0"));
    if (title == nullptr)
        return std::nullopt;
    Arrival painted(*title);
    const Clock::time_point start = Clock::now();
    title->update();
    return painted.millisecondsFrom(start);
}

struct ReturnSample {
    double handled = 0.0; // the key event handled: the edit stored and the views told
    double frame = 0.0;   // the scene's frame with the new radius painted
};

// The row selected, a new radius typed into its radius field, then Return, until the
// scene has painted the planet with its new radius.
std::optional<ReturnSample> radiusReturn(window::AppDelegate& app, std::size_t row,
                                         const QString& radius) {
    if (!select(app, row))
        return std::nullopt;
    auto* field = qobject_cast<QLineEdit*>(app.tableView1().control(window::PlanetColumn::radius));
    if (field == nullptr)
        return std::nullopt;
    field->setFocus();
    field->selectAll();
    Arrival typed(*field);
    QTest::keyClicks(field, radius);
    if (!typed.millisecondsFrom(Clock::now()))
        return std::nullopt;

    Arrival painted(&app.sceneview(), &window::sceneView::framePainted);
    const Clock::time_point start = Clock::now();
    QTest::keyClick(field, Qt::Key_Return);
    const double handled = millisecondsSince(start);
    const Sample frame = painted.millisecondsFrom(start);
    if (!frame || app.state().planetArray.at(row).radius != radius.toStdString())
        return std::nullopt;
    return ReturnSample{handled, *frame};
}

void printFigure(const char* what, const Spread& figure, bool withGoal) {
    std::printf("    %-48s %8.1f ms (%.1f)", what, figure.median, figure.best);
    if (withGoal)
        std::printf("   goal: under %.0f ms at %d planets", kGoalMs, kGoalPlanets);
    std::printf("\n");
}

bool measure(int planets) {
    FreshWindow fresh;
    if (!fresh.ready()) {
        std::fprintf(stderr, "bench_table: the window never painted its first frame\n");
        return false;
    }
    window::AppDelegate& app = fresh.app();
    const Clock::time_point creation = Clock::now();
    const double coverage = addSpreadPlanets(app, planets);
    const double creationMs = millisecondsSince(creation);

    // The first fill, selection and edit load the swatches, thumbnails and surfaces.
    if (!fill(app) || !radiusReturn(app, rowOfRun(kRuns, planets), QStringLiteral("25"))) {
        std::fprintf(stderr, "bench_table: warming up with %d planets failed\n", planets);
        return false;
    }
    std::vector<double> fills, selections, handled, frames, titles;
    for (int run = 0; run < kRuns; ++run) {
        const Sample filled = fill(app);
        const Sample selected = select(app, rowOfRun(run, planets));
        const auto edited = radiusReturn(app, rowOfRun(run + kRuns + 1, planets),
                                         QStringLiteral("%1.5").arg(26 + run));
        const Sample title = titleRepaint(app);
        if (!filled || !selected || !edited || !title) {
            std::fprintf(stderr, "bench_table: run %d with %d planets timed out or failed\n",
                         run + 1, planets);
            return false;
        }
        fills.push_back(*filled);
        selections.push_back(*selected);
        handled.push_back(edited->handled);
        frames.push_back(edited->frame);
        titles.push_back(*title);
    }
    std::printf("  %d planets (created through the editor in %.0f ms; their discs would cover "
                "the picture %.2f times)%s\n",
                planets, creationMs, coverage,
                fresh.fits() ? "" : " (the window does not fit on the screen)");
    printFigure("fill: reloadPlanets to the table painted", spread(fills), true);
    printFigure("selection change to the table painted", spread(selections), true);
    printFigure("Return in a radius cell to the scene painted", spread(frames), true);
    printFigure("  of which the Return handled", spread(handled), false);
    printFigure("the title label alone repainted, for comparison", spread(titles), false);
    return true;
}

} // namespace
} // namespace orrery::bench

int main(int argc, char** argv) {
    using namespace orrery::bench;
    return runWithApplication(argc, argv, [] {
        std::printf("Planet table benchmark: median (best) of %d runs in a freshly started "
                    "window\n",
                    kRuns);
        for (const int planets : {1000, kGoalPlanets})
            if (!measure(planets))
                return 2;
        return 0;
    });
}
