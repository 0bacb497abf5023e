#include "customWin/sceneView.h"

#include "customWin/SceneSurface.h"
#include "customWin/screenView.h"

#include <QPainter>
#include <QTimer>

namespace orrery::window {

sceneView::sceneView(const screenView& backdrop, QWidget* parent)
    : QWidget(parent), backdrop_(backdrop), surface_(new SceneSurface(backdrop)) {
    setObjectName(QStringLiteral("sceneView"));
    connect(surface_, &SceneSurface::planetHit, this, &sceneView::planetHit);
    connect(surface_, &SceneSurface::planetMoved, this, &sceneView::planetMoved);
    connect(surface_, &SceneSurface::framePainted, this, &sceneView::framePainted);
    connect(&backdrop, &screenView::changed, surface_, &SceneSurface::backdropChanged);
    connect(&backdrop, &screenView::changed, this, qOverload<>(&QWidget::update));
}

sceneView::~sceneView() {
    if (container_ == nullptr)
        delete surface_;
}

void sceneView::showSurface() {
    if (container_ != nullptr)
        return;
    container_ = QWidget::createWindowContainer(surface_, this);
    container_->setObjectName(QStringLiteral("sceneSurface"));
    container_->setFocusPolicy(Qt::NoFocus);
    container_->setGeometry(rect());
    container_->show();
}

void sceneView::paintEvent(QPaintEvent*) {
    if (container_ != nullptr)
        return;
    QPainter painter(this);
    backdrop_.paintBackdrop(painter, rect());
    emit framePainted();
    QTimer::singleShot(0, this, &sceneView::showSurface);
}

SceneView& sceneView::scene() {
    return surface_->scene();
}

std::optional<Image>
sceneView::imageFromSceneKitView(QSize size, std::string* error,
                                 const std::function<void(int done, int total)>& progress) {
    return surface_->picture(size, error, progress);
}

QImage sceneView::grabFramebuffer() {
    return container_ != nullptr ? surface_->grabFramebuffer() : grab().toImage();
}

void sceneView::redraw() {
    surface_->update();
}

QWindow& sceneView::surface() {
    return *surface_;
}

void sceneView::resizeEvent(QResizeEvent*) {
    // The scene knows its size before its window first draws, so that a press finds planets.
    surface_->scene().setViewSize(width(), height());
    if (container_ != nullptr)
        container_->setGeometry(rect());
}

} // namespace orrery::window
