// Frame times and peak memory of the headless renderer at 1920 x 1080, for growing numbers
// of planets, plus hit-test times. Every frame time is also given as a ratio to the floor:
// one bare pass over every pixel of the frame of the planet shader the case's planets use
// (FloorPass: plain, or with gradient and surface), measured in the same process in turn
// with the case's frames, so that both see the same machine. Three frames per case: kept (nothing
// changed since the last frame), drag (one planet moved) and full (the light moved, so every planet
// is drawn again). Prints figures; never fails on time.
//   bench_render [--quick] [filling | PLANETS plain|styled [RADIUS]]
// With a case, measures only that case (to compare changes quickly); "filling" is one
// plain planet that fills the frame, the floor's own scene drawn by the renderer.
#include "bench/render/FloorPass.h"
#include "core/scene/SceneView.h"
#include "imageio/SurfaceLibrary.h"
#include "render/HeadlessContext.h"
#include "render/Renderer.h"
#include "render/StandInFramebuffer.h"

#include <epoxy/gl.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
using Clock = std::chrono::steady_clock;

// Peak resident memory since the last reset, in MiB (VmHWM of /proc/self/status).
double peakMemoryMiB() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("VmHWM:", 0) == 0)
            return std::stod(line.substr(6)) / 1024.0;
    return 0.0;
}

void resetPeakMemory() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

double median(std::vector<double> values) {
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Layout {
    int planets = 0;
    double radius = 24.0;
    bool dressed = false;    // styles and surfaces, or plain white spheres
    double sceneScale = 1.0; // positions and camera scaled too
    bool filling = false;    // the floor's scene instead: one plain planet filling the frame
};

// Planets scattered through a box in front of the camera, from 500 to 3000 units away:
// 1,000 planets of the default radius cover about half of the picture, more planets cover
// it several times over. Scaling the scene with the radius keeps the picture the same.
void populate(orrery::SceneView& view, const Layout& layout) {
    const double scale = layout.sceneScale;
    view.updateCamera(45, 45, 0, 0, 500 * scale, true, true);
    std::mt19937 random(42);
    std::uniform_real_distribution<double> across(-1200, 1200);
    std::uniform_real_distribution<double> upDown(-700, 700);
    std::uniform_real_distribution<double> depth(-2500, 0);
    const orrery::Color colour{0.3, 0.5, 0.9, 1.0};
    for (int i = 0; i < layout.planets; ++i) {
        const std::string x = std::to_string(across(random) * scale);
        const std::string y = std::to_string(upDown(random) * scale);
        const std::string z = std::to_string(depth(random) * scale);
        const std::string r = std::to_string(layout.radius);
        if (layout.dressed)
            view.createPlanet2(std::to_string(i), colour, i % 3 == 0 ? 0 : 1 + i % 82, 1 + i % 48,
                               x, y, z, r);
        else
            view.createPlanet(std::to_string(i), x, y, z, r);
    }
}

// The floor's scene: one planet, 1,500 units ahead, whose silhouette covers every pixel of
// the frame; plain, or dressed as the dressed cases' planets are, with a style and a surface.
void populateFloor(orrery::SceneView& view, bool dressed) {
    view.updateCamera(45, 45, 0, 0, 500, true, true);
    if (dressed)
        view.createPlanet2("floor", {0.3, 0.5, 0.9, 1.0}, 1, 1, "0", "0", "-1000", "1000");
    else
        view.createPlanet("floor", "0", "0", "-1000", "1000");
}

// How many times over the planets' silhouettes would paint the picture.
double screenCoverage(const orrery::SceneView& view) {
    const orrery::CameraProjection camera = view.projection(kWidth, kHeight);
    double area = 0.0;
    for (const auto& node : view.scene().rootNode().children()) {
        if (!node->sphere())
            continue;
        const orrery::Vec3 centre = camera.project(node->position());
        const double distance = camera.eye().z - node->position().z;
        const orrery::Vec3 rim =
            camera.project(node->position() + orrery::Vec3{0, node->sphere()->radius, 0});
        const double radius = rim.y - centre.y;
        if (distance > 0 && centre.x > -radius && centre.x < kWidth + radius &&
            centre.y > -radius && centre.y < kHeight + radius)
            area += 3.14159265 * radius * radius;
    }
    return area / (static_cast<double>(kWidth) * kHeight);
}

// Milliseconds of one finished frame.
double frameMs(orrery::Renderer& renderer, const orrery::SceneView& view,
               const orrery::render::StandInFramebuffer& target) {
    const auto start = Clock::now();
    renderer.render(view, target.id(), kWidth, kHeight);
    glFinish();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Calls `round` until `seconds` have passed and at least three times.
template <typename Round> void repeatFor(double seconds, Round round) {
    const auto start = Clock::now();
    for (int rounds = 0;
         rounds < 3 || std::chrono::duration<double>(Clock::now() - start).count() < seconds;
         ++rounds)
        round(rounds);
}

// Where a planet can be grabbed: the middle of the view, or else the first planet on
// screen that a click reaches.
orrery::ViewPoint grabPoint(orrery::SceneView& view) {
    orrery::ViewPoint point{kWidth / 2.0, kHeight / 2.0};
    for (const auto& node : view.scene().rootNode().children()) {
        if (!view.hitTest(point).empty())
            return point;
        const orrery::Vec3 projected = view.projectPoint(node->position());
        point = {projected.x, projected.y};
    }
    return point;
}

// A kind of frame: its median time and its median ratio to the floor drawn just before.
struct FrameTimes {
    std::vector<double> ms;
    std::vector<double> ratios;

    void add(double frame, double floor) {
        ms.push_back(frame);
        ratios.push_back(frame / floor);
    }
};

struct Figures {
    double coverage = 0.0;
    FrameTimes kept;
    FrameTimes drag;
    FrameTimes full;
    std::vector<double> floorMs;
    // For styled cases, the full frame against the plain shader's floor too: what styles and
    // surfaces cost on top of it.
    FrameTimes fullOverPlain;
    std::vector<double> plainFloorMs;
    double peakMiB = 0.0;
};

using RendererPtr = std::unique_ptr<orrery::Renderer>;

std::optional<Figures> measure(const std::function<RendererPtr()>& makeRenderer,
                               const orrery::SurfaceSource& surfaces, const Layout& layout,
                               bool quick, std::string& error) {
    const double seconds = quick ? 0.3 : 1.5;
    const orrery::render::StandInFramebuffer target(kWidth, kHeight);
    resetPeakMemory();
    const RendererPtr renderer = makeRenderer();
    orrery::SceneView view;
    view.setViewSize(kWidth, kHeight);
    if (layout.filling)
        populateFloor(view, false);
    else
        populate(view, layout);
    const auto floorFor = [&](bool dressed) {
        orrery::SceneView floorView;
        floorView.setViewSize(kWidth, kHeight);
        populateFloor(floorView, dressed);
        return orrery::bench::FloorPass::create(floorView, kWidth, kHeight, surfaces, &error);
    };
    const auto floor = floorFor(layout.dressed);
    const auto plainFloor = layout.dressed ? floorFor(false) : nullptr;
    if (!renderer || !floor || (layout.dressed && !plainFloor))
        return std::nullopt;
    Figures figures;
    figures.coverage = screenCoverage(view);
    frameMs(*renderer, view, target);

    // Each round: the floor, then a full frame, a kept one and a drag frame, in which the
    // grabbed planet moves (its planet data is patched and uploaded, and its area drawn).
    const orrery::ViewPoint grab = grabPoint(view);
    view.mouseDown(grab);
    repeatFor(seconds, [&](int round) {
        const double floorMs = floor->drawMs(target.id());
        figures.floorMs.push_back(floorMs);
        const double plainFloorMs = plainFloor ? plainFloor->drawMs(target.id()) : 0.0;
        view.updateLight(round % 2 == 0 ? "1" : "0", "0", "100");
        const double fullMs = frameMs(*renderer, view, target);
        figures.full.add(fullMs, floorMs);
        if (plainFloor) {
            figures.plainFloorMs.push_back(plainFloorMs);
            figures.fullOverPlain.add(fullMs, plainFloorMs);
        }
        figures.kept.add(frameMs(*renderer, view, target), floorMs);
        view.mouseDragged({grab.x + 1 + round % 5, grab.y});
        figures.drag.add(frameMs(*renderer, view, target), floorMs);
    });
    view.mouseUp();
    figures.peakMiB = peakMemoryMiB();
    return figures;
}

void hitTestTimes(int planets) {
    orrery::SceneView view;
    view.setViewSize(kWidth, kHeight);
    populate(view, Layout{planets, 24.0, false});
    std::mt19937 random(1);
    std::uniform_real_distribution<double> x(0, kWidth);
    std::uniform_real_distribution<double> y(0, kHeight);
    constexpr int kClicks = 200;
    std::size_t hits = 0;
    const auto start = Clock::now();
    for (int i = 0; i < kClicks; ++i)
        hits += view.hitTest({x(random), y(random)}).size();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    std::printf("hit test, %6d planets: %8.3f ms per click (%zu hits in %d clicks)\n", planets,
                seconds * 1000.0 / kClicks, hits, kClicks);
}

void printHeader(const std::string& renderer, const std::string& route) {
    std::printf("%s via %s, %d x %d; x floor: frame time / the floor's in the same round\n",
                renderer.c_str(), route.c_str(), kWidth, kHeight);
    std::printf("%7s %-16s %7s %8s | %8s %7s | %8s %7s | %8s %7s | %8s | %14s %8s\n", "planets",
                "material", "radius", "coverage", "kept ms", "x floor", "drag ms", "x floor",
                "full ms", "x floor", "floor ms", "full x plain", "peak MiB");
}

void printFigures(const Layout& layout, const Figures& f) {
    const char* material = layout.filling   ? "filling"
                           : layout.dressed ? "styled+surfaced"
                                            : "plain";
    char overPlain[32] = "";
    if (!f.plainFloorMs.empty())
        std::snprintf(overPlain, sizeof overPlain, "%.2f (%.1f)", median(f.fullOverPlain.ratios),
                      median(f.plainFloorMs));
    std::printf(
        "%7d %-16s %7.1f %8.2f | %8.1f %7.2f | %8.1f %7.2f | %8.1f %7.2f | %8.1f | %14s %8.1f\n",
        layout.filling ? 1 : layout.planets, material, layout.filling ? 1000.0 : layout.radius,
        f.coverage, median(f.kept.ms), median(f.kept.ratios), median(f.drag.ms),
        median(f.drag.ratios), median(f.full.ms), median(f.full.ratios), median(f.floorMs),
        overPlain, f.peakMiB);
}

// Measures one layout in a process of its own, so that its peak memory is its own.
bool runOne(const Layout& layout, bool quick, bool describe = false) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0) {
        std::string error;
        const auto context = orrery::HeadlessContext::create(&error);
        orrery::imageio::SurfaceLibrary library;
        const orrery::SurfaceSource surfaces = [&library](const std::string& name) {
            return library.surfaceNamed(name);
        };
        const auto makeRenderer = [&]() -> RendererPtr {
            return context ? orrery::Renderer::create(surfaces, &error) : nullptr;
        };
        if (const RendererPtr probe = makeRenderer(); !probe) {
            std::fprintf(stderr, "bench_render: %s\n", error.c_str());
            _exit(2);
        } else if (describe) {
            printHeader(probe->description(), context->route());
        }
        const std::optional<Figures> figures =
            measure(makeRenderer, surfaces, layout, quick, error);
        if (!figures) {
            std::fprintf(stderr, "bench_render: %s\n", error.c_str());
            _exit(2);
        }
        printFigures(layout, *figures);
        std::fflush(stdout);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
} // namespace

int main(int argc, char** argv) {
    const bool quick = argc > 1 && std::string(argv[1]) == "--quick";
    const int rest = quick ? 2 : 1;
    if (argc == rest + 1 && std::string(argv[rest]) == "filling")
        return runOne(Layout{.filling = true}, quick, true) ? 0 : 2;
    if (argc == rest + 2 || argc == rest + 3) {
        const bool dressed = std::string(argv[rest + 1]) == "styled";
        const double radius = argc == rest + 3 ? std::atof(argv[rest + 2]) : 24.0;
        return runOne(Layout{std::atoi(argv[rest]), radius, dressed}, quick, true) ? 0 : 2;
    }
    if (!runOne(Layout{.filling = true}, quick, true))
        return 2;
    for (const bool dressed : {false, true})
        for (const int planets : {1, 100, 1000, 10000, 100000})
            if (!runOne(Layout{planets, 24.0, dressed}, quick))
                return 2;
    // Memory must not follow the radius: the same picture drawn at two scales.
    for (const double radius : {5.0, 5000.0})
        if (!runOne(Layout{1000, radius, true, radius / 24.0}, quick))
            return 2;
    // What costs is the pixels covered, not the number of planets: smaller planets, the
    // same coverage as 1,000 of the default size.
    for (const auto& [planets, radius] : {std::pair{10000, 7.6}, std::pair{100000, 2.4}})
        if (!runOne(Layout{planets, radius, true}, quick))
            return 2;
    for (const int planets : {1000, 100000})
        hitTestTimes(planets);
    return 0;
}
