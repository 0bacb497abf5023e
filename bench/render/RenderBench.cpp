// Frames per second and peak memory of the headless renderer at 1920 x 1080, for growing
// numbers of planets, plus hit-test times. Prints figures; never fails on time.
//   bench_render [--quick] [PLANETS plain|styled]
// With a planet count, measures only that case (to compare changes quickly).
#include "core/scene/SceneView.h"
#include "imageio/SurfaceLibrary.h"
#include "render/HeadlessContext.h"
#include "render/Renderer.h"

#include <epoxy/gl.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <random>
#include <string>

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

struct Layout {
    int planets = 0;
    double radius = 24.0;
    bool dressed = false;    // styles and surfaces, or plain white spheres
    double sceneScale = 1.0; // positions and camera scaled too
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

struct Figures {
    double coverage = 0.0;
    double framesPerSecond = 0.0;
    double dragFramesPerSecond = 0.0; // a planet moves between frames
    double peakMiB = 0.0;
};

Figures measure(orrery::Renderer& renderer, GLuint target, const Layout& layout, bool quick) {
    resetPeakMemory();
    orrery::SceneView view;
    view.setViewSize(kWidth, kHeight);
    populate(view, layout);
    const auto timeFrames = [&](auto&& beforeFrame) {
        renderer.render(view, target, kWidth, kHeight);
        glFinish();
        const auto start = Clock::now();
        int frames = 0;
        const double minimum = quick ? 0.3 : 1.5;
        double seconds = 0.0;
        while (seconds < minimum || frames < 3) {
            beforeFrame(frames);
            renderer.render(view, target, kWidth, kHeight);
            glFinish();
            ++frames;
            seconds = std::chrono::duration<double>(Clock::now() - start).count();
        }
        return frames / seconds;
    };
    Figures figures;
    figures.coverage = screenCoverage(view);
    figures.framesPerSecond = timeFrames([](int) {});
    // Dragging: a planet moves before every frame, so the planet data is rebuilt and
    // uploaded each time.
    const auto first = view.scene().rootNode().childNodesNamed("planet0");
    const orrery::Vec3 grab =
        view.projectPoint(first.empty() ? orrery::Vec3{} : first[0]->position());
    view.mouseDown({grab.x, grab.y});
    figures.dragFramesPerSecond = timeFrames([&](int frame) {
        view.mouseDragged({grab.x + 1 + frame % 5, grab.y});
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

struct Bench {
    std::unique_ptr<orrery::HeadlessContext> context;
    orrery::imageio::SurfaceLibrary surfaces;
    std::unique_ptr<orrery::Renderer> renderer;
    GLuint colour = 0;
    GLuint target = 0;

    bool start() {
        std::string error;
        context = orrery::HeadlessContext::create(&error);
        if (context)
            renderer = orrery::Renderer::create(
                [this](const std::string& name) { return surfaces.surfaceNamed(name); }, &error);
        if (!renderer) {
            std::fprintf(stderr, "bench_render: %s\n", error.c_str());
            return false;
        }
        // Stands in for the window's framebuffer.
        glGenRenderbuffers(1, &colour);
        glBindRenderbuffer(GL_RENDERBUFFER, colour);
        glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, kWidth, kHeight);
        glGenFramebuffers(1, &target);
        glBindFramebuffer(GL_FRAMEBUFFER, target);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colour);
        return true;
    }

    ~Bench() {
        renderer.reset();
        if (target != 0) {
            glDeleteFramebuffers(1, &target);
            glDeleteRenderbuffers(1, &colour);
        }
    }
};

// Measures one layout in a process of its own, so that its peak memory is its own.
bool runOne(const Layout& layout, bool quick, bool describe = false) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0) {
        Bench bench;
        if (!bench.start())
            _exit(2);
        if (describe)
            std::printf("%s via %s, %d x %d\n%7s %-16s %7s %9s %9s %9s %9s\n",
                        bench.renderer->description().c_str(), bench.context->route().c_str(),
                        kWidth, kHeight, "planets", "material", "radius", "coverage", "fps",
                        "drag fps", "peak MiB");
        const Figures f = measure(*bench.renderer, bench.target, layout, quick);
        std::printf("%7d %-16s %7.0f %9.2f %9.1f %9.1f %9.1f\n", layout.planets,
                    layout.dressed ? "styled+surfaced" : "plain", layout.radius, f.coverage,
                    f.framesPerSecond, f.dragFramesPerSecond, f.peakMiB);
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
    if (const int rest = quick ? 2 : 1; argc == rest + 2) {
        const bool dressed = std::string(argv[rest + 1]) == "styled";
        return runOne(Layout{std::atoi(argv[rest]), 24.0, dressed}, quick, true) ? 0 : 2;
    }
    bool first = true;
    for (const bool dressed : {false, true}) {
        for (const int planets : {1, 100, 1000, 10000, 100000}) {
            if (!runOne(Layout{planets, 24.0, dressed}, quick, first))
                return 2;
            first = false;
        }
    }
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
