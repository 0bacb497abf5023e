#include "customWin/sceneView.h"

#include "customWin/SceneSurface.h"
#include "customWin/screenView.h"

namespace orrery::window {

sceneView::sceneView(const screenView& backdrop, QWidget* parent)
    : QWidget(parent), surface_(new SceneSurface(backdrop)),
      container_(QWidget::createWindowContainer(surface_, this)) {
    setObjectName(QStringLiteral("sceneView"));
    container_->setObjectName(QStringLiteral("sceneSurface"));
    container_->setFocusPolicy(Qt::NoFocus);
    connect(surface_, &SceneSurface::planetHit, this, &sceneView::planetHit);
    connect(surface_, &SceneSurface::planetMoved, this, &sceneView::planetMoved);
    connect(surface_, &SceneSurface::framePainted, this, &sceneView::framePainted);
    connect(&backdrop, &screenView::changed, surface_, &SceneSurface::backdropChanged);
}

SceneView& sceneView::scene() {
    return surface_->scene();
}

std::optional<Image> sceneView::imageFromSceneKitView(std::string* error) {
    return surface_->picture(error);
}

QImage sceneView::grabFramebuffer() {
    return surface_->grabFramebuffer();
}

void sceneView::redraw() {
    surface_->update();
}

QWindow& sceneView::surface() {
    return *surface_;
}

const QString& sceneView::rendererProblem() const {
    return surface_->rendererProblem();
}

void sceneView::resizeEvent(QResizeEvent*) {
    container_->setGeometry(rect());
}

} // namespace orrery::window
