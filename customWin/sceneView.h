#pragma once

#include "core/scene/SceneView.h"
#include "core/styles/Image.h"
#include "imageio/SurfaceLibrary.h"

#include <QOpenGLWidget>

#include <memory>
#include <optional>
#include <string>

namespace orrery {
class Renderer;
}

namespace orrery::window {

// The 3D view of the document area: the planet scene drawn by the renderer over a
// transparent background, so that the backdrop beneath shows wherever there is no planet.
// It redraws only when the scene changed. A press on a planet selects it and a drag moves
// it in the plane of the screen; both are reported by signals, with the planet's tsecs.
class sceneView : public QOpenGLWidget {
    Q_OBJECT
public:
    explicit sceneView(QWidget* parent);
    ~sceneView() override;

    // The scene operations (planets, camera, light) and its mouse rules.
    SceneView& scene() { return scene_; }
    const SceneView& scene() const { return scene_; }

    // The view's pixels at the backing scale, top row first, straight alpha; none, with
    // the reason in `error`, when the picture cannot be drawn.
    std::optional<Image> imageFromSceneKitView(std::string* error = nullptr);

    // The reason the scene cannot be drawn on this machine, or empty.
    const QString& rendererProblem() const { return rendererProblem_; }

signals:
    // "0" when the press hit no planet.
    void planetHit(const QString& tsecs);
    void planetMoved(const QString& tsecs, const QString& x, const QString& y, const QString& z);
    void framePainted();

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    ViewPoint viewPoint(const QPointF& position) const;
    void releaseRenderer();

    SceneView scene_;
    imageio::SurfaceLibrary surfaces_;
    std::unique_ptr<Renderer> renderer_;
    QString rendererProblem_;
};

} // namespace orrery::window
