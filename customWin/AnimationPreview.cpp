#include "customWin/AnimationPreview.h"

#include "core/export/ExportPicture.h"
#include "customWin/AppStyle.h"
#include "imageio/QtImageWrap.h"
#include "imageio/SurfaceLibrary.h"
#include "render/TurntableRender.h"

#include <QFutureWatcher>
#include <QtConcurrent>

#include <algorithm>

namespace orrery::window {
namespace {

// Enough frames to see the turn; a loop of many more only turns more smoothly.
constexpr int kMostPreviewFrames = 48;

std::vector<QImage> drawLoop(const SceneView& live, AnimationOptions options, QSize size,
                             long background, bool keepsAlpha) {
    options.frames = std::min(options.frames, kMostPreviewFrames);
    SceneView view;
    live.copyInto(view);
    imageio::SurfaceLibrary surfaces;
    std::vector<QImage> frames;
    const FrameConsumer keep = [&](Image frame) {
        const Image picture = exportAnimationFrame(std::move(frame), background,
                                                   options.includeBackground, keepsAlpha);
        frames.push_back(imageio::wrapImage(picture).copy());
        return std::string();
    };
    const PipelineOutcome outcome = renderTurntable(
        view, options, size.width(), size.height(), {0, options.frames - 1},
        [&surfaces](const std::string& name) { return surfaces.surfaceNamed(name); }, keep, {});
    if (!outcome.ok())
        frames.clear();
    return frames;
}

} // namespace

AnimationPreview::AnimationPreview(QSize size, QWidget* parent) : QLabel(parent), size_(size) {
    setObjectName(QStringLiteral("animationPreview"));
    setFixedSize(size);
    setAlignment(Qt::AlignCenter);
    // A dark field shows transparency as the window would.
    setStyleSheet(QStringLiteral("background: #0d1020; border: 1px solid %1;")
                      .arg(QLatin1String(kFloatingRim)));
    connect(&timer_, &QTimer::timeout, this, [this] {
        if (frames_.empty())
            return;
        shown_ = (shown_ + 1) % frames_.size();
        setPixmap(frames_[shown_]);
    });
}

void AnimationPreview::showLoop(std::shared_ptr<const SceneView> scene,
                                const AnimationOptions& options, long background, bool keepsAlpha) {
    const int request = ++request_;
    // The loop lasts as long as the real one, however few frames the preview draws.
    const int frames = std::min(options.frames, kMostPreviewFrames);
    const int interval = std::max(1, 1000 * options.frames / (options.fps * frames));
    auto* watcher = new QFutureWatcher<std::vector<QImage>>(this);
    connect(watcher, &QFutureWatcher<std::vector<QImage>>::finished, this,
            [this, watcher, request, interval] {
                watcher->deleteLater();
                if (request != request_)
                    return;
                frames_.clear();
                for (const QImage& frame : watcher->result())
                    frames_.push_back(QPixmap::fromImage(frame));
                shown_ = 0;
                if (!frames_.empty())
                    setPixmap(frames_.front());
                timer_.start(interval);
                emit loopReady();
            });
    watcher->setFuture(QtConcurrent::run(
        [scene = std::move(scene), options, size = size_, background, keepsAlpha] {
            return drawLoop(*scene, options, size, background, keepsAlpha);
        }));
}

} // namespace orrery::window
