// The main window's start-up time against a bare OpenGL window, and its frame rate while a
// planet is dragged among many. Prints figures with their goals; never fails on time. Needs
// an X server with a screen that holds a 1962 x 1344 window:
//   xvfb-run -a -s "-screen 0 2560x1440x24" bench_window
#include "bench/window/ChildModes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace orrery::bench {
namespace {

constexpr int kStarts = 5;
constexpr double kStartRatioGoal = 1.5;
constexpr double kDragFpsGoal = 30.0;

int runChildMode(int argc, char** argv) {
    const std::string_view mode = argv[2];
    const Clock::time_point start = startFromArgument(argv[3]);
    if (mode == "bare")
        return runBareStart(argc, argv, start);
    if (mode == "window")
        return runWindowStart(argc, argv, start);
    if (mode == "drag" && argc > 4)
        return runWindowDrag(argc, argv, std::atoi(argv[4]));
    return 2;
}

// The median and the best of a few samples; on a shared machine the best shows the cost
// without other load.
struct Spread {
    double median = 0.0;
    double best = 0.0;
};

Spread spread(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return {values[values.size() / 2], values.front()};
}

double number(const Figures& figures, const char* key) {
    const auto found = figures.find(key);
    return found == figures.end() ? 0.0 : std::atof(found->second.c_str());
}

bool startTimes() {
    std::vector<double> bare;
    std::vector<double> window;
    for (int i = 0; i < kStarts; ++i) {
        const auto bareRun = runChild("bare");
        const auto windowRun = runChild("window");
        if (!bareRun || !windowRun) {
            std::fprintf(stderr, "bench_window: a start did not reach its first frame\n");
            return false;
        }
        if (i == 0)
            std::printf("OpenGL renderer: %s; %s\n\n", bareRun->at("renderer").c_str(),
                        bareRun->at("version").c_str());
        bare.push_back(number(*bareRun, "ms"));
        window.push_back(number(*windowRun, "ms"));
    }
    const Spread bareMs = spread(bare);
    const Spread windowMs = spread(window);
    std::printf("Start to first painted frame, median (best) of %d cold starts from fork\n",
                kStarts);
    std::printf("  bare window with one QOpenGLWidget  %7.1f ms (%.1f)\n", bareMs.median,
                bareMs.best);
    std::printf("  main window, fresh settings         %7.1f ms (%.1f)\n", windowMs.median,
                windowMs.best);
    std::printf("  ratio                               %7.2f    (%.2f)   goal: at most %.1f\n\n",
                windowMs.median / bareMs.median, windowMs.best / bareMs.best, kStartRatioGoal);
    return true;
}

bool dragRate(int planets) {
    const auto run = runChild("drag", std::to_string(planets));
    if (!run) {
        std::fprintf(stderr, "bench_window: the drag among %d planets failed\n", planets);
        return false;
    }
    std::printf("  %5d planets, covering %4.2f  %7.1f fps   goal: at least %.0f   (%.0f frames, "
                "slowest %.1f ms, processor %.1f ms a frame)\n",
                planets, number(*run, "coverage"), number(*run, "fps"), kDragFpsGoal,
                number(*run, "frames"), number(*run, "worst_ms"), number(*run, "cpu_ms"));
    if (number(*run, "moves") == 0)
        std::printf("  (the planet did not move: the press missed it)\n");
    if (number(*run, "fits") == 0)
        std::printf("  (the window does not fit on the screen: use a larger one)\n");
    return true;
}

} // namespace
} // namespace orrery::bench

int main(int argc, char** argv) {
    using namespace orrery::bench;
    if (argc > 3 && std::string_view(argv[1]) == "--child")
        return runChildMode(argc, argv);
    std::printf("Main window benchmark (figures, with the goal beside each)\n");
    if (!startTimes())
        return 2;
    std::printf("Dragging one planet on a 1920 x 1080 document area, frames per second; one\n"
                "planet alone shows what every frame costs besides the planets\n");
    for (const int planets : {1, 100, 1000})
        if (!dragRate(planets))
            return 2;
    return 0;
}
