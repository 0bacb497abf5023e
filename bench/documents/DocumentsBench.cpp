// Opening and saving packages of 1,000 and 100,000 planets in the program's window, and
// exporting a 1920 x 1080 picture in every format through the window against the bare
// encoder. Beside each time: how often the progress sheet's spinner was painted while the
// work ran, and the longest the main thread answered nothing (the longest the window could
// not paint). Prints figures; never fails on time. Needs an X server with a screen that
// holds the 1962 x 1344 window of a 1920 x 1080 document:
//   xvfb-run -a -s "-screen 0 2560x1440x24" bench_documents
#include "bench/documents/ExportRuns.h"
#include "bench/documents/PackageRuns.h"
#include "bench/table/FreshWindow.h"
#include "bench/table/SpreadPlanets.h"
#include "bench/table/Waiting.h"
#include "customWin/tableView1/PlanetTable.h"

#include <cstdio>
#include <memory>

namespace orrery::bench {
namespace {

constexpr int kExportPlanets = 1000;

// A freshly started window showing `planets` planets; none when it did not come up.
std::unique_ptr<FreshWindow> windowWith(int planets) {
    auto fresh = std::make_unique<FreshWindow>();
    if (!fresh->ready()) {
        std::fprintf(stderr, "bench_documents: the window never painted its first frame\n");
        return nullptr;
    }
    addSpreadPlanets(fresh->app(), planets);
    Arrival painted(*fresh->app().tableView1().viewport());
    fresh->app().reloadPlanets();
    return painted.millisecondsFrom(Clock::now()) ? std::move(fresh) : nullptr;
}

} // namespace
} // namespace orrery::bench

int main(int argc, char** argv) {
    using namespace orrery::bench;
    return runWithApplication(argc, argv, [] {
        std::printf(
            "Documents benchmark: median (best) of a few runs in a freshly started window.\n"
            "request: the main thread's part before the progress sheet; apply: its part after\n"
            "the sheet; spinner: the sheet's frames (one every 80 ms while the main thread is\n"
            "free); stall: the longest the main thread answered nothing, for Open until the\n"
            "scene has painted the opened system whole (all in ms)\n");
        for (const int planets : {1000, 100000}) {
            const std::unique_ptr<FreshWindow> fresh = windowWith(planets);
            if (!fresh || !reportPackages(*fresh, planets))
                return 2;
        }
        std::printf("Export of %d planets through the window, from the save panel's Save to "
                    "the file\nwritten (the question's fixed 500 ms before the panel is not "
                    "counted), against the\nbare encoder writing the same picture\n",
                    kExportPlanets);
        const std::unique_ptr<FreshWindow> fresh = windowWith(kExportPlanets);
        return fresh && reportExports(*fresh) ? 0 : 2;
    });
}
