#pragma once

#include "core/animate/AnimationOptions.h"

#include <QLabel>
#include <QPixmap>
#include <QTimer>

#include <memory>
#include <vector>

namespace orrery {
class SceneView;
}

namespace orrery::window {

// The animation sheet's small picture of the system turning: the loop is drawn on a worker
// thread (its own headless context, a copy of the scene taken when asked), then played over
// and over at the chosen rate. A newer request replaces a loop still being drawn.
class AnimationPreview : public QLabel {
    Q_OBJECT
public:
    AnimationPreview(QSize size, QWidget* parent);
    // Draws the loop anew for these options over this background (0 for none).
    void showLoop(std::shared_ptr<const SceneView> scene, const AnimationOptions& options,
                  long background, bool keepsAlpha);
    // How many frames are playing (0 while the first loop is drawn).
    int frameCount() const { return static_cast<int>(frames_.size()); }

signals:
    void loopReady();

private:
    QSize size_;
    QTimer timer_;
    std::vector<QPixmap> frames_;
    std::size_t shown_ = 0;
    int request_ = 0;
};

} // namespace orrery::window
