// Both window runs go through the program's own entry point, runWindow, so that they measure
// exactly what a user starts. A routine that QApplication runs when it is constructed
// watches for the scene view and attaches the measurement before its first frame.
#include "bench/window/ChildModes.h"
#include "bench/window/PlanetDrag.h"
#include "customWin/WindowMain.h"
#include "customWin/sceneView.h"

#include <QApplication>
#include <QEvent>

namespace orrery::bench {
namespace {

enum class Measure { start, drag };

// What the running child measures; global because the construction routine takes no
// arguments.
struct Run {
    Measure measure = Measure::start;
    Clock::time_point start;
    int planets = 0;
} run;

void attach(window::sceneView& view) {
    if (run.measure == Measure::start) {
        QObject::connect(
            &view, &window::sceneView::framePainted, &view,
            [] {
                report("ms", millisecondsSince(run.start));
                QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
            },
            Qt::SingleShotConnection);
        return;
    }
    // The drag starts once the window is on screen, outside its paint.
    QObject::connect(
        &view, &window::sceneView::framePainted, &view,
        [&view] { QCoreApplication::exit(reportPlanetDrag(view, run.planets) ? 0 : 1); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

// Finds the scene view when it is polished, which is before it is first shown.
class SceneViewWatch : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Polish && !attached_)
            if (auto* view = qobject_cast<window::sceneView*>(watched)) {
                attached_ = true;
                attach(*view);
            }
        return false;
    }

private:
    bool attached_ = false;
};

void watchForSceneView() {
    qApp->installEventFilter(new SceneViewWatch(qApp));
}

int runWindowMeasuring(int argc, char** argv, const Run& measurement) {
    run = measurement;
    qAddPreRoutine(watchForSceneView);
    return window::runWindow(argc, argv);
}

} // namespace

int runWindowStart(int argc, char** argv, Clock::time_point start) {
    return runWindowMeasuring(argc, argv, {Measure::start, start, 0});
}

int runWindowDrag(int argc, char** argv, int planets) {
    return runWindowMeasuring(argc, argv, {Measure::drag, Clock::now(), planets});
}

} // namespace orrery::bench
