#pragma once

#include "core/scene/SceneView.h"
#include "core/styles/Image.h"

#include <QImage>
#include <QWidget>

#include <functional>
#include <optional>
#include <string>

class QWindow;

namespace orrery::window {

class SceneSurface;
class screenView;

// The 3D view of the document area: the planet scene drawn by the renderer over the
// backdrop. A press on a planet selects it and a drag moves it in the plane of the screen;
// both are reported by signals, with the planet's tsecs. The drawing happens in a window of
// its own (SceneSurface) that this widget holds in place. The very first frame is the
// backdrop alone, painted by this widget without OpenGL; the scene's window takes over right
// after it, so that the window does not wait for OpenGL to start.
class sceneView : public QWidget {
    Q_OBJECT
public:
    sceneView(const screenView& backdrop, QWidget* parent);
    ~sceneView() override;

    // The scene operations (planets, camera, light) and its mouse rules.
    SceneView& scene();

    // The picture of the scene at `size` points (the document's size, which the view may
    // show scaled) at the backing scale, top row first, straight alpha; none, with the
    // reason in `error`, when the picture cannot be drawn. A large picture is drawn in
    // parts, each reported to `progress` (parts done, parts).
    std::optional<Image>
    imageFromSceneKitView(QSize size, std::string* error = nullptr,
                          const std::function<void(int done, int total)>& progress = {});
    // What the window shows there now, backdrop included.
    QImage grabFramebuffer();
    // Draws the scene again at the next frame.
    void redraw();
    // The window that takes the mouse.
    QWindow& surface();

signals:
    // "0" when the press hit no planet.
    void planetHit(const QString& tsecs);
    void planetMoved(const QString& tsecs, const QString& x, const QString& y, const QString& z);
    void framePainted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Puts the scene's own window in place, once.
    void showSurface();

    const screenView& backdrop_;
    SceneSurface* surface_;
    QWidget* container_ = nullptr; // owns surface_ once it exists
};

} // namespace orrery::window
