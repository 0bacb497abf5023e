// Prints how long writing and reading a project package of 10,000 and 100,000 planets
// takes and the peak memory of each, measured in a child process of its own so that one
// measurement does not inherit another's peak. "document" is the peak of a process that
// only builds the planet list, the floor under the write figure.
//
//   build/<dir>/bench/package/bench_package [planets ...]

#include "core/model/TextNumber.h"
#include "core/package/ProjectPackage.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace orrery;
namespace fs = std::filesystem;

// Planets as a user leaves them: typed and dragged positions, a few dozen names, colours
// picked from a well.
ProjectDocument documentOf(std::size_t planets) {
    ProjectDocument document;
    document.documentWidth = "960";
    document.documentHeight = "540";
    document.cameraSettings = {"45.0", "45.0", "0.000000", "0.000000", "500.000000", "1", "1"};
    document.lightPosition = {0.0, 0.0, 100.0};
    document.planets.reserve(planets);
    for (std::size_t i = 0; i < planets; ++i) {
        PlanetRecord planet =
            newPlanetRecord(std::to_string(1700000000 + i / 4), "Planet " + std::to_string(i % 50));
        planet.styleindex = std::to_string(i % 82);
        planet.surfaceindex = std::to_string(i % 48);
        planet.xvalue = formatGeneral(static_cast<float>(i % 2000) * 0.37f - 370.0f);
        planet.yvalue = formatGeneral(static_cast<float>(i % 977) * 0.5f);
        planet.zvalue = std::to_string(i % 300);
        planet.radius = std::to_string(4 + i % 40);
        planet.color = {static_cast<double>(i % 255) / 255.0, 0.5, 0.25, 1.0};
        document.planets.push_back(std::move(planet));
    }
    return document;
}

struct Measurement {
    double seconds = 0;    // wall-clock
    double cpuSeconds = 0; // user and system
    long peakKiB = 0;
    bool ok = false;
};

double cpuSecondsSoFar() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return t.tv_sec + t.tv_usec / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Runs `prepare`, then `work` in a child process, timing the work alone: the child reports its own
// times through a pipe, the kernel reports its peak resident memory. The machine may be shared, so
// the CPU time is the steadier figure.
Measurement measure(const std::function<void()>& prepare, const std::function<bool()>& work) {
    int channel[2];
    if (::pipe(channel) != 0)
        return {};
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(channel[0]);
        prepare();
        const double cpuStart = cpuSecondsSoFar();
        const auto start = std::chrono::steady_clock::now();
        const bool ok = work();
        const double report[3] = {
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
            cpuSecondsSoFar() - cpuStart, ok ? 1.0 : 0.0};
        const bool sent = ::write(channel[1], report, sizeof report) == sizeof report;
        ::_exit(sent ? 0 : 1);
    }
    ::close(channel[1]);
    double report[3] = {0, 0, 0};
    const bool received = ::read(channel[0], report, sizeof report) == sizeof report;
    ::close(channel[0]);
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    return {report[0], report[1], usage.ru_maxrss, received && report[2] == 1.0};
}

double mebibytes(double kibibytes) {
    return kibibytes / 1024.0;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::size_t> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::strtoull(argv[i], nullptr, 10));
    if (sizes.empty())
        sizes = {10000, 100000};

    const fs::path folder =
        fs::temp_directory_path() / ("orrery-bench-" + std::to_string(getpid()));
    fs::create_directories(folder);
    std::printf("%9s %10s %9s %17s %10s %17s %10s\n", "planets", "data1.xml", "document",
                "write (cpu)", "write peak", "read (cpu)", "read peak");
    for (std::size_t planets : sizes) {
        const fs::path package = folder / ("System" + std::to_string(planets) + ".kvx");
        ProjectDocument document; // filled in the child processes only
        const auto build = [&] {
            document = documentOf(planets);
        };
        const auto nothing = [] {
        };
        const Measurement built = measure(build, [] { return true; });
        const Measurement write = measure(build, [&] {
            std::string error;
            const bool ok = writeProjectPackage(package, document, error);
            if (!ok)
                std::fprintf(stderr, "%s\n", error.c_str());
            return ok;
        });
        const Measurement read = measure(nothing, [&] {
            OpenedProject project;
            std::string error;
            const bool ok =
                readProjectPackage(package, project, error) && project.planets.size() == planets;
            if (!ok)
                std::fprintf(stderr, "%s\n", error.c_str());
            return ok;
        });
        std::error_code ignored;
        const auto bytes = fs::file_size(package / kPlanetListFile, ignored);
        std::printf("%9zu %6.1f MiB %5.0f MiB %6.2f s (%5.2f s) %6.0f MiB %6.2f s (%5.2f s) "
                    "%6.0f MiB%s\n",
                    planets, static_cast<double>(bytes) / (1 << 20), mebibytes(built.peakKiB),
                    write.seconds, write.cpuSeconds, mebibytes(write.peakKiB), read.seconds,
                    read.cpuSeconds, mebibytes(read.peakKiB),
                    write.ok && read.ok ? "" : "  (failed)");
    }
    fs::remove_all(folder);
    return 0;
}
