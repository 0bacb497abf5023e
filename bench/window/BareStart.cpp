#include "bench/window/ChildModes.h"
#include "core/app/ScreenFit.h"
#include "customWin/mainView.h"

#include "customWin/WindowMain.h"
#include <QApplication>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QScreen>

namespace orrery::bench {
namespace {

std::string glString(QOpenGLFunctions& gl, GLenum name) {
    const GLubyte* text = gl.glGetString(name);
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

// Clears to transparent black; its first frame ends the run.
class BareView : public QOpenGLWidget {
public:
    BareView(QWidget* parent, Clock::time_point start) : QOpenGLWidget(parent), start_(start) {}

protected:
    void paintGL() override {
        QOpenGLFunctions& gl = *context()->functions();
        gl.glClearColor(0, 0, 0, 0);
        gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        if (reported_)
            return;
        reported_ = true;
        report("ms", millisecondsSince(start_));
        report("renderer", glString(gl, GL_RENDERER));
        report("version", glString(gl, GL_VERSION));
        // The first frame may come before the event loop runs, when exit would be ignored.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }

private:
    Clock::time_point start_;
    bool reported_ = false;
};

} // namespace

int runBareStart(int argc, char** argv, Clock::time_point start) {
    // The format the main window asks for.
    // The same surface as the window's scene, so that only the window differs.
    window::useSceneSurfaceFormat();

    QApplication application(argc, argv);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const PixelSize document =
        firstDocumentSize({screen.left(), screen.top(), screen.width(), screen.height()});
    const PixelSize frame = windowSizeForDocument(document);
    QWidget window;
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.resize(frame.width, frame.height);
    auto* view = new BareView(&window, start);
    view->setGeometry(window::mainView::kSideMargin,
                      window::mainView::kTitleStrip + window::mainView::kHeaderHeight +
                          kDocumentFrame / 2,
                      document.width, document.height);
    window.show();
    return QApplication::exec();
}

} // namespace orrery::bench
