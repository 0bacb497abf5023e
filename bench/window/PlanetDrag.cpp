#include "bench/window/PlanetDrag.h"

#include "bench/window/ChildProcess.h"
#include "core/app/DocumentArea.h"
#include "core/styles/GradientCatalogue.h"
#include "core/styles/SurfaceNames.h"
#include "customWin/sceneView.h"

#include <QScreen>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QWindow>
#include <QTest>

#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace orrery::bench {
namespace {

constexpr QSize kDocument(1920, 1080);
constexpr double kDragSeconds = 2.0;
constexpr int kFrameTimeoutMs = 5000;
constexpr int kWarmUpMoves = 3;
constexpr double kDraggedZ = 200.0;
constexpr const char* kDraggedPlanet = "1424700000";

// The planets strewn through the camera's view from 800 to 4000 units away, all of the
// default radius, three in four styled and surfaced, the rest plain; the dragged one in front
// of them all at the middle. Returns how many times over the planets' discs would cover the
// picture, about 0.45 for 1,000 planets.
double populate(SceneView& scene, int planets) {
    constexpr double kRadius = 24.0;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> across(-0.95, 0.95);
    std::uniform_real_distribution<double> away(800.0, 4000.0);
    const double halfHeightPerUnit = std::tan(std::numbers::pi / 8); // 45 degrees vertically
    const double pixelsPerUnit = scene.viewHeight() / 2 / halfHeightPerUnit; // at distance 1
    const double aspect = scene.viewWidth() / scene.viewHeight();
    const double cameraZ = scene.cameraNode().position().z;
    const std::string radius = std::to_string(kRadius);
    const Color blue{0.2, 0.4, 0.9, 1.0};
    double discs = 0.0;
    for (int i = 1; i < planets; ++i) {
        const double distance = away(random);
        const double halfHeight = distance * halfHeightPerUnit;
        const std::string x = std::to_string(across(random) * halfHeight * aspect);
        const std::string y = std::to_string(across(random) * halfHeight);
        const std::string z = std::to_string(cameraZ - distance);
        const std::string tsecs = std::to_string(1424700000 + i);
        if (i % 4 == 0)
            scene.createPlanet(tsecs, x, y, z, radius);
        else
            scene.createPlanet2(tsecs, blue, i % 3 == 0 ? 0 : 1 + i % (catalogue::kRowCount - 1),
                                1 + i % kSurfaceCount, x, y, z, radius);
        discs += std::pow(kRadius * pixelsPerUnit / distance, 2) * std::numbers::pi;
    }
    scene.createPlanet2(kDraggedPlanet, blue, 5, 3, "0", "0", std::to_string(kDraggedZ), radius);
    return discs / (scene.viewWidth() * scene.viewHeight());
}

// A frame painted since `before` frames were counted; the frame may already have come
// while the move was handled.
bool frameSince(QSignalSpy& painted, qsizetype before) {
    return painted.count() > before || painted.wait(kFrameTimeoutMs);
}

// The window around the document, at the screen's top-left corner so that all of it shows.
bool placeWindow(window::sceneView& view, QSignalSpy& painted) {
    QWidget& window = *view.window();
    const PixelSize size = windowSizeForDocument({kDocument.width(), kDocument.height()});
    window.setGeometry(
        QRect(view.screen()->availableGeometry().topLeft(), QSize(size.width, size.height)));
    if (!QTest::qWaitFor([&] { return view.size() == kDocument; }, kFrameTimeoutMs))
        return false;
    const qsizetype before = painted.count();
    view.redraw();
    return frameSince(painted, before);
}

// A mouse event as the window system hands it to the scene's window.
void sendMouse(QWindow& surface, QEvent::Type type, QPoint point, Qt::MouseButtons buttons) {
    QMouseEvent event(type, point, surface.mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&surface, &event);
}

// The pointer goes round a circle about the planet's first place, 10 pixels a move.
QPoint pointOfMove(QPoint grab, int move) {
    constexpr double kRadius = 200.0;
    const double angle = move * 0.05;
    return grab + QPoint(static_cast<int>(std::lround(kRadius * std::cos(angle))),
                         static_cast<int>(std::lround(kRadius * std::sin(angle))));
}

// Processor time of the whole process, all threads (the software rasteriser's among them).
double processorMilliseconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval& time) {
        return time.tv_sec * 1e3 + time.tv_usec / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

} // namespace

bool reportPlanetDrag(window::sceneView& view, int planets) {
    QSignalSpy painted(&view, &window::sceneView::framePainted);
    QSignalSpy moved(&view, &window::sceneView::planetMoved);
    if (!placeWindow(view, painted))
        return false;
    report("fits", view.screen()->geometry().contains(view.window()->frameGeometry()) ? 1 : 0);

    const qsizetype populated = painted.count();
    report("coverage", populate(view.scene(), planets));
    if (!frameSince(painted, populated))
        return false;
    const Vec3 centre = view.scene().projectPoint({0, 0, kDraggedZ});
    const QPoint grab(static_cast<int>(std::lround(centre.x)),
                      view.height() - static_cast<int>(std::lround(centre.y)));
    sendMouse(view.surface(), QEvent::MouseButtonPress, grab, Qt::LeftButton);
    int move = 0;
    for (; move < kWarmUpMoves; ++move) {
        const qsizetype before = painted.count();
        sendMouse(view.surface(), QEvent::MouseMove, pointOfMove(grab, move), Qt::LeftButton);
        if (!frameSince(painted, before))
            return false;
    }

    int frames = 0;
    double worst = 0.0;
    double seconds = 0.0;
    const Clock::time_point begin = Clock::now();
    const double processorAtBegin = processorMilliseconds();
    while (seconds < kDragSeconds) {
        const Clock::time_point before = Clock::now();
        const qsizetype count = painted.count();
        sendMouse(view.surface(), QEvent::MouseMove, pointOfMove(grab, move++), Qt::LeftButton);
        if (!frameSince(painted, count))
            return false;
        ++frames;
        worst = std::max(worst, millisecondsSince(before));
        seconds = millisecondsSince(begin) / 1000.0;
    }
    sendMouse(view.surface(), QEvent::MouseButtonRelease, pointOfMove(grab, move), Qt::NoButton);
    report("fps", frames / seconds);
    report("frames", frames);
    report("cpu_ms", (processorMilliseconds() - processorAtBegin) / frames);
    report("worst_ms", worst);
    report("moves", static_cast<double>(moved.count()));
    return true;
}

} // namespace orrery::bench
