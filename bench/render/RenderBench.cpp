// Frames per second and peak memory of the headless renderer at 1920 x 1080, for growing
// numbers of planets, plus hit-test times. Prints figures; never fails on time.
//   bench_render [--quick]
#include "core/scene/SceneView.h"
#include "imageio/SurfaceLibrary.h"
#include "render/HeadlessContext.h"
#include "render/Renderer.h"

#include <epoxy/gl.h>

#include <chrono>
#include <cstdio>
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
    bool dressed = false; // styles and surfaces, or plain white spheres
};

// Planets scattered through the view, the same for every radius once scaled by it, so
// that only the radius differs between two runs of one count.
void populate(orrery::SceneView& view, const Layout& layout) {
    const double scale = layout.radius / 24.0;
    view.updateCamera(45, 45, 0, 0, 500 * scale, true, true);
    std::mt19937 random(42);
    std::uniform_real_distribution<double> across(-420, 420);
    std::uniform_real_distribution<double> upDown(-230, 230);
    std::uniform_real_distribution<double> depth(-400, 100);
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

struct Figures {
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

} // namespace

int main(int argc, char** argv) {
    const bool quick = argc > 1 && std::string(argv[1]) == "--quick";
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // figures appear as they are measured
    std::string error;
    const auto context = orrery::HeadlessContext::create(&error);
    if (!context) {
        std::fprintf(stderr, "bench_render: %s\n", error.c_str());
        return 2;
    }
    orrery::imageio::SurfaceLibrary surfaces;
    auto renderer = orrery::Renderer::create(
        [&](const std::string& name) { return surfaces.surfaceNamed(name); }, &error);
    if (!renderer) {
        std::fprintf(stderr, "bench_render: %s\n", error.c_str());
        return 2;
    }
    // The window's framebuffer stands in as a plain RGBA target.
    GLuint colour = 0;
    GLuint target = 0;
    glGenRenderbuffers(1, &colour);
    glBindRenderbuffer(GL_RENDERBUFFER, colour);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, kWidth, kHeight);
    glGenFramebuffers(1, &target);
    glBindFramebuffer(GL_FRAMEBUFFER, target);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colour);

    renderer->render(orrery::SceneView(), target, kWidth, kHeight); // compile, allocate
    std::printf("%s via %s, %d x %d\n", renderer->description().c_str(), context->route().c_str(),
                kWidth, kHeight);
    std::printf("%-26s %10s %12s %14s\n", "planets", "fps", "drag fps", "peak MiB");
    for (const bool dressed : {false, true}) {
        for (const int planets : {1, 100, 1000, 10000, 100000}) {
            const Figures f = measure(*renderer, target, Layout{planets, 24.0, dressed}, quick);
            std::printf("%7d %-18s %10.1f %12.1f %14.1f\n", planets,
                        dressed ? "styled+surfaced" : "plain", f.framesPerSecond,
                        f.dragFramesPerSecond, f.peakMiB);
        }
    }
    std::printf("memory against radius, 1000 styled+surfaced planets (same picture, scaled):\n");
    for (const double radius : {5.0, 5000.0}) {
        const Figures f = measure(*renderer, target, Layout{1000, radius, true}, quick);
        std::printf("  radius %6.0f: %10.1f fps %14.1f peak MiB\n", radius, f.framesPerSecond,
                    f.peakMiB);
    }
    for (const int planets : {1000, 100000})
        hitTestTimes(planets);

    renderer.reset();
    glDeleteFramebuffers(1, &target);
    glDeleteRenderbuffers(1, &colour);
    return 0;
}
