#pragma once

#include "core/scene/SceneView.h"
#include "core/styles/Image.h"
#include "imageio/SurfaceLibrary.h"

#include <QOpenGLWindow>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace orrery {
class Renderer;
}

namespace orrery::window {

class screenView;

// The window the scene is drawn in: a native OpenGL window of its own inside the main
// window, so that a frame costs only the scene and not a composition of the whole main
// window. The renderer lays the planets over the backdrop as it finishes the picture (the
// backdrop alone is painted when there are no planets), and the window redraws only when
// the scene or the backdrop changed.
class SceneSurface : public QOpenGLWindow {
    Q_OBJECT
public:
    explicit SceneSurface(const screenView& backdrop);
    ~SceneSurface() override;

    SceneView& scene() { return scene_; }
    // The scene at `size` points times the backing scale; a large picture is drawn in parts,
    // each reported to `progress` (parts done, parts).
    std::optional<Image> picture(QSize size, std::string* error,
                                 const std::function<void(int done, int total)>& progress);
    // The backdrop looks different: it is handed to the renderer again and drawn.
    void backdropChanged();

signals:
    void planetHit(const QString& tsecs);
    void planetMoved(const QString& tsecs, const QString& x, const QString& y, const QString& z);
    // A whole frame is on the screen: a large redraw spread over several paints emits this
    // after its last.
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
    bool ensureRenderer();
    void releaseRenderer();
    void giveBackdrop(QSize pixels);

    const screenView& backdrop_;
    SceneView scene_;
    imageio::SurfaceLibrary surfaces_;
    std::unique_ptr<Renderer> renderer_;
    QString rendererProblem_;
    QSize backdropGiven_; // the size of the backdrop the renderer has; empty: none yet
};

} // namespace orrery::window
