#include "customWin/SceneSurface.h"

#include "core/support/Log.h"
#include "customWin/screenView.h"
#include "render/Renderer.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QPainter>

#include <cmath>
#include <cstring>

namespace orrery::window {
namespace {

// A full redraw of more planets than this goes to the screen over several paints, so that
// the window answers between them (about 20 ms a paint here, drawn with llvmpipe).
constexpr std::size_t kPlanetsPerPaint = 5000;

int devicePixels(int points, qreal scale) {
    return static_cast<int>(std::lround(points * scale));
}

} // namespace

SceneSurface::SceneSurface(const screenView& backdrop)
    : QOpenGLWindow(QOpenGLWindow::NoPartialUpdate), backdrop_(backdrop) {
    scene_.setNeedsDisplayHandler([this] { update(); });
    scene_.setController(
        {[this](const std::string& tsecs) { emit planetHit(QString::fromStdString(tsecs)); },
         [this](const std::string& tsecs, const std::string& x, const std::string& y,
                const std::string& z) {
             emit planetMoved(QString::fromStdString(tsecs), QString::fromStdString(x),
                              QString::fromStdString(y), QString::fromStdString(z));
         }});
}

SceneSurface::~SceneSurface() {
    releaseRenderer();
}

void SceneSurface::releaseRenderer() {
    if (!renderer_)
        return;
    makeCurrent();
    renderer_.reset();
    doneCurrent();
}

void SceneSurface::initializeGL() {
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &SceneSurface::releaseRenderer,
            Qt::UniqueConnection);
}

// The renderer is made when there is first something to draw: an empty scene is only its
// backdrop, and the window comes up sooner without compiling shaders first.
bool SceneSurface::ensureRenderer() {
    if (renderer_ || !rendererProblem_.isEmpty())
        return renderer_ != nullptr;
    std::string error;
    renderer_ = Renderer::create(
        [this](const std::string& name) { return surfaces_.surfaceNamed(name); }, &error);
    if (!renderer_) {
        rendererProblem_ = QString::fromStdString(error);
        logMessage("The scene cannot be drawn: " + error);
        return false;
    }
    renderer_->spreadRedraws(kPlanetsPerPaint);
    backdropGiven_ = QSize();
    return true;
}

void SceneSurface::resizeGL(int, int) {
    // The scene works in points; the renderer is given device pixels when it draws.
    scene_.setViewSize(width(), height());
}

void SceneSurface::backdropChanged() {
    backdropGiven_ = QSize();
    update();
}

void SceneSurface::giveBackdrop(QSize pixels) {
    if (backdropGiven_ == pixels)
        return;
    QImage painted(pixels, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(devicePixelRatio());
    {
        QPainter painter(&painted);
        backdrop_.paintBackdrop(painter, QRect(QPoint(0, 0), size()));
    }
    const QImage straight = painted.convertToFormat(QImage::Format_RGBA8888);
    Image image(straight.width(), straight.height());
    for (int row = 0; row < image.height; ++row)
        std::memcpy(image.pixel(0, row), straight.constScanLine(row), image.stride());
    renderer_->setBackdrop(image);
    backdropGiven_ = pixels;
}

void SceneSurface::paintGL() {
    if (scene_.hasPlanets() && ensureRenderer()) {
        const qreal scale = devicePixelRatio();
        const QSize pixels(devicePixels(width(), scale), devicePixels(height(), scale));
        giveBackdrop(pixels);
        std::string error;
        if (!renderer_->render(scene_, defaultFramebufferObject(), pixels.width(), pixels.height(),
                               &error))
            logMessage("Drawing the scene failed: " + error);
        if (renderer_->drawsMore()) {
            update();
            return;
        }
    } else {
        QPainter painter(this);
        backdrop_.paintBackdrop(painter, QRect(QPoint(0, 0), size()));
    }
    emit framePainted();
}

std::optional<Image>
SceneSurface::picture(QSize size, std::string* error,
                      const std::function<void(int done, int total)>& progress) {
    if (context() == nullptr) {
        if (error != nullptr)
            *error = "the scene has not been shown yet";
        return std::nullopt;
    }
    makeCurrent();
    if (!ensureRenderer()) {
        doneCurrent();
        if (error != nullptr)
            *error = rendererProblem_.toStdString();
        return std::nullopt;
    }
    const qreal scale = devicePixelRatio();
    // Between tiles the progress may let the window paint, and another context be current.
    const PictureTiling tiling{0, [this, &progress](int done, int total) {
                                   if (progress)
                                       progress(done, total);
                                   makeCurrent();
                               }};
    std::optional<Image> picture =
        renderer_->renderImage(scene_, devicePixels(size.width(), scale),
                               devicePixels(size.height(), scale), error, tiling);
    doneCurrent();
    return picture;
}

ViewPoint SceneSurface::viewPoint(const QPointF& position) const {
    // The scene counts y upwards from the bottom-left corner.
    return {position.x(), height() - position.y()};
}

void SceneSurface::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QOpenGLWindow::mousePressEvent(event);
    scene_.mouseDown(viewPoint(event->position()));
    event->accept();
}

void SceneSurface::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton))
        return QOpenGLWindow::mouseMoveEvent(event);
    scene_.mouseDragged(viewPoint(event->position()));
    event->accept();
}

void SceneSurface::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QOpenGLWindow::mouseReleaseEvent(event);
    scene_.mouseUp();
    event->accept();
}

} // namespace orrery::window
