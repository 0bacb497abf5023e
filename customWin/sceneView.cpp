#include "customWin/sceneView.h"

#include "core/support/Log.h"
#include "render/Renderer.h"

#include <QMouseEvent>
#include <QOpenGLContext>

#include <cmath>

namespace orrery::window {
namespace {

int devicePixels(int points, qreal scale) {
    return static_cast<int>(std::lround(points * scale));
}

} // namespace

sceneView::sceneView(QWidget* parent) : QOpenGLWidget(parent) {
    setObjectName(QStringLiteral("sceneView"));
    // Stacked over the backdrop with an alpha buffer, the widget is blended by straight
    // alpha, which is what the renderer writes.
    setAttribute(Qt::WA_AlwaysStackOnTop);
    setUpdateBehavior(QOpenGLWidget::NoPartialUpdate);
    scene_.setNeedsDisplayHandler([this] { update(); });
    scene_.setController(
        {[this](const std::string& tsecs) { emit planetHit(QString::fromStdString(tsecs)); },
         [this](const std::string& tsecs, const std::string& x, const std::string& y,
                const std::string& z) {
             emit planetMoved(QString::fromStdString(tsecs), QString::fromStdString(x),
                              QString::fromStdString(y), QString::fromStdString(z));
         }});
}

sceneView::~sceneView() {
    releaseRenderer();
}

void sceneView::releaseRenderer() {
    if (!renderer_)
        return;
    makeCurrent();
    renderer_.reset();
    doneCurrent();
}

void sceneView::initializeGL() {
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &sceneView::releaseRenderer,
            Qt::UniqueConnection);
    std::string error;
    renderer_ = Renderer::create(
        [this](const std::string& name) { return surfaces_.surfaceNamed(name); }, &error);
    if (!renderer_) {
        rendererProblem_ = QString::fromStdString(error);
        logMessage("The scene cannot be drawn: " + error);
    }
}

void sceneView::resizeGL(int, int) {
    // The scene works in points; the renderer is given device pixels when it draws.
    scene_.setViewSize(width(), height());
}

void sceneView::paintGL() {
    if (!renderer_)
        return;
    const qreal scale = devicePixelRatioF();
    std::string error;
    if (!renderer_->render(scene_, defaultFramebufferObject(), devicePixels(width(), scale),
                           devicePixels(height(), scale), &error))
        logMessage("Drawing the scene failed: " + error);
    emit framePainted();
}

std::optional<Image> sceneView::imageFromSceneKitView(std::string* error) {
    if (!renderer_) {
        if (error != nullptr)
            *error = rendererProblem_.isEmpty() ? "the scene view has not been shown yet"
                                                : rendererProblem_.toStdString();
        return std::nullopt;
    }
    const qreal scale = devicePixelRatioF();
    makeCurrent();
    std::optional<Image> picture = renderer_->renderImage(
        scene_, devicePixels(width(), scale), devicePixels(height(), scale), error);
    doneCurrent();
    return picture;
}

ViewPoint sceneView::viewPoint(const QPointF& position) const {
    // The scene counts y upwards from the bottom-left corner.
    return {position.x(), height() - position.y()};
}

void sceneView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QOpenGLWidget::mousePressEvent(event);
    scene_.mouseDown(viewPoint(event->position()));
    event->accept();
}

void sceneView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton))
        return QOpenGLWidget::mouseMoveEvent(event);
    scene_.mouseDragged(viewPoint(event->position()));
    event->accept();
}

void sceneView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QOpenGLWidget::mouseReleaseEvent(event);
    scene_.mouseUp();
    event->accept();
}

} // namespace orrery::window
