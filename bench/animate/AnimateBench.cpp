// Prints, for the example systems at 960 x 540 and 1920 x 1080, how many frames a second
// `orrery animate` makes of a 48-frame loop in each format, against drawing the same frames
// alone (no encoding, nothing written); and the peak memory of a loop of 48 and of 480
// frames, which a stream should keep the same (but for the sprite sheet, which is one
// picture of them all). Every run is a process of its own, so that its peak memory is its
// own; the machine's load moves the figures, the ratios less. Beside each run stands the
// processor time it took (user and system, on all its threads): on a machine of few cores
// that, not the overlap, is what bounds a format's speed.
//
//   build/<dir>/bench/animate/bench_animate [EXAMPLE ...]    (default: all four)

#include "cli/RenderOptions.h"
#include "core/animate/AnimationOptions.h"
#include "core/export/PackageScene.h"
#include "core/package/ProjectPackage.h"
#include "imageio/SurfaceLibrary.h"
#include "render/TurntableRender.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace orrery;
namespace fs = std::filesystem;

struct Run {
    double seconds = 0.0;
    double cpuSeconds = 0.0; // user and system, all threads
    double peakMiB = 0.0;
    bool ok = false;
};

// Runs a program to its end; its time and its own peak resident memory.
Run runProcess(const std::vector<std::string>& arguments) {
    std::vector<char*> argv;
    for (const std::string& a : arguments)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execv(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    Run run;
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const auto secondsOf = [](const timeval& t) {
        return t.tv_sec + t.tv_usec / 1e6;
    };
    run.cpuSeconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
    run.peakMiB = usage.ru_maxrss / 1024.0;
    run.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return run;
}

// The child that draws the frames and drops them: what rendering alone costs.
int renderOnly(const std::string& package, double scale, int frames) {
    OpenedProject project;
    std::string error;
    if (!readProjectPackage(package, project, error))
        return 2;
    const DocumentSize size = packageDocumentSize(project);
    SceneView view;
    loadPackageScene(view, project);
    imageio::SurfaceLibrary surfaces;
    AnimationOptions options;
    options.frames = frames;
    const PipelineOutcome outcome = renderTurntable(
        view, options, cli::scaledSide(size.width, scale), cli::scaledSide(size.height, scale),
        {0, frames - 1}, [&](const std::string& name) { return surfaces.surfaceNamed(name); },
        [](Image) { return std::string(); }, {});
    return outcome.ok() ? 0 : 3;
}

double scaleFor(const std::string& package, int width) {
    OpenedProject project;
    std::string error;
    readProjectPackage(package, project, error);
    return static_cast<double>(width) / packageDocumentSize(project).width;
}

struct Format {
    const char* name;
    const char* output; // the -o path in the scratch folder
};
constexpr Format kFormats[] = {{"GIF", "a.gif"},   {"WebP", "a.webp"}, {"PNG frames", "f/"},
                               {"sheet", "s.png"}, {"WebM", "a.webm"}, {"MP4", "a.mp4"}};

Run animate(const std::string& package, double scale, int frames, const Format& format,
            const fs::path& scratch) {
    fs::remove_all(scratch);
    fs::create_directory(scratch);
    return runProcess({ORRERY_EXECUTABLE, "animate", package, "-o",
                       (scratch / format.output).string(), "--scale", std::to_string(scale),
                       "--frames", std::to_string(frames)});
}

} // namespace

int main(int argc, char** argv) {
    const std::string self = fs::canonical("/proc/self/exe").string();
    if (argc == 5 && std::string(argv[1]) == "--render-only")
        return renderOnly(argv[2], std::atof(argv[3]), std::atoi(argv[4]));

    std::vector<std::string> examples;
    for (int i = 1; i < argc; ++i)
        examples.push_back(argv[i]);
    if (examples.empty())
        examples = {"earth-and-moon", "sunlit-system", "binary-ice", "ringed-giant"};
    const fs::path scratch =
        fs::temp_directory_path() / ("bench-animate-" + std::to_string(getpid()));

    std::printf("%-15s %-10s %-10s %9s %9s %8s %7s %9s\n", "example", "size", "format", "fps",
                "render", "x render", "CPU s", "peak MiB");
    for (const std::string& example : examples) {
        const std::string package = std::string(ORRERY_EXAMPLES) + "/" + example + ".kvx";
        for (const int width : {960, 1920}) {
            const double scale = scaleFor(package, width);
            const Run alone =
                runProcess({self, "--render-only", package, std::to_string(scale), "48"});
            const double renderFps = 48 / alone.seconds;
            const std::string size = width == 960 ? "960x540" : "1920x1080";
            std::printf("%-15s %-10s %-10s %9.1f %9s %8s %7.2f %9.0f\n", example.c_str(),
                        size.c_str(), "(render)", renderFps, "", "", alone.cpuSeconds,
                        alone.peakMiB);
            for (const Format& format : kFormats) {
                const Run run = animate(package, scale, 48, format, scratch);
                std::printf("%-15s %-10s %-10s %9.1f %9.1f %7.2fx %7.2f %9.0f%s\n", example.c_str(),
                            size.c_str(), format.name, 48 / run.seconds, renderFps,
                            run.seconds / alone.seconds, run.cpuSeconds, run.peakMiB,
                            run.ok ? "" : "  FAILED");
                std::fflush(stdout);
            }
        }
    }

    // Memory against the loop's length: the first example at 960 x 540.
    const std::string package = std::string(ORRERY_EXAMPLES) + "/" + examples.front() + ".kvx";
    const double scale = scaleFor(package, 960);
    std::printf("\n%-10s %12s %12s %8s   (%s, 960x540)\n", "format", "48 MiB", "480 MiB", "change",
                examples.front().c_str());
    for (const Format& format : kFormats) {
        const Run few = animate(package, scale, 48, format, scratch);
        const Run many = animate(package, scale, 480, format, scratch);
        std::printf("%-10s %12.0f %12.0f %7.0f%%%s\n", format.name, few.peakMiB, many.peakMiB,
                    100.0 * (many.peakMiB - few.peakMiB) / few.peakMiB,
                    few.ok && many.ok ? "" : "  FAILED");
        std::fflush(stdout);
    }
    fs::remove_all(scratch);
    return 0;
}
