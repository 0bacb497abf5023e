// Export Animation: the sheet with the turn's options and its turning preview, the save
// panel of the chosen format (a folder for frames), and the frames drawn and written on a
// worker thread behind a progress sheet that counts them and can stop the work.
#include "core/animate/AnimationPreferences.h"
#include "core/app/AppPaths.h"
#include "core/export/ExportChoices.h"
#include "core/scene/SceneView.h"
#include "customWin/AnimationSheet.h"
#include "customWin/AppDelegate.h"
#include "customWin/PackageDialogs.h"
#include "customWin/ProgressSheet.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "imageio/AnimationExport.h"
#include "imageio/SurfaceLibrary.h"
#include "render/TurntableRender.h"

#include <QPointer>
#include <QTimer>

#include <atomic>
#include <cmath>

namespace orrery::window {
namespace {

constexpr int kPanelDelayMs = 500;

} // namespace

std::shared_ptr<SceneView> AppDelegate::sceneForExport() {
    auto copy = std::make_shared<SceneView>();
    sceneview().scene().copyInto(*copy);
    copy->setViewSize(shownDocument_.width, shownDocument_.height);
    return copy;
}

void AppDelegate::FileExportAnimation() {
    saveMenuStatus();
    auto* sheet = new AnimationSheet(
        *mainWindow_, storedAnimationChoices(settings_.preferenceArray),
        includeBackgroundChoice(state_.currentBackground, settings_.checkboxArray),
        state_.currentBackground, sceneForExport(),
        [this](const std::optional<AnimationChoices>& choices) {
            if (!choices) {
                loadMenuStatus();
                return;
            }
            for (const PreferenceRow& row : animationPreferenceRows(*choices)) {
                settings_.saveData1(row.value, row.field);
                settings_.editData1(row.position, row.value);
            }
            QTimer::singleShot(kPanelDelayMs, this,
                               [this, chosen = *choices] { chooseAnimationFile(chosen); });
        });
    sheet->open();
    placeAsSheet(*sheet, *mainWindow_);
}

// The save panel adds the format's extension; frames go into a folder of their own.
void AppDelegate::chooseAnimationFile(const AnimationChoices& choices) {
    const QString folder = exportPanelFolder();
    const auto chosen = [this, choices](const QString& path) {
        if (path.isEmpty()) {
            loadMenuStatus();
            return;
        }
        exportAnimation(choices.format == AnimationFormat::frames ? path + QLatin1Char('/') : path,
                        choices);
    };
    const std::string_view extension = animationFormatInfo(choices.format).extension;
    if (extension.empty()) {
        chooseFolderPanel(*mainWindow_, folder, text("animationFolderTitle"), chosen);
        return;
    }
    savePicturePanel(
        *mainWindow_, folder,
        {text("animationSaveTitle"), text("animationSaveMessage"), text("animationUntitled")},
        QString::fromUtf8(extension.data(), static_cast<qsizetype>(extension.size())), nullptr,
        chosen);
}

void AppDelegate::exportAnimation(const QString& path, const AnimationChoices& choices) {
    const AnimationOptions options = choices.options;
    imageio::AnimationJob job;
    job.format = choices.format;
    job.path = path.toStdString();
    job.settings.width = static_cast<int>(std::lround(shownDocument_.width * options.scale));
    job.settings.height = static_cast<int>(std::lround(shownDocument_.height * options.scale));
    job.settings.fps = options.fps;
    job.settings.frames = options.frames;
    job.settings.compression = compressionFactor(options.quality);
    job.settings.loopPalette = options.loopPalette;
    job.background = state_.currentBackground;
    job.includeBackground = options.includeBackground;

    auto stop = std::make_shared<std::atomic<bool>>(false);
    auto* progress = new ProgressSheet(text("animationWriting"), *mainWindow_);
    progress->offerCancel(text("animationCancel"), [stop] { *stop = true; });
    progress->begin();
    const QPointer<ProgressSheet> shown(progress);
    const auto counted = [shown, stop](int done, int total) {
        QMetaObject::invokeMethod(shown, [shown, done, total] {
            if (shown.isNull())
                return;
            shown->setProgress(done, total);
            shown->setDetail(text("animationProgress").arg(done).arg(total));
        });
        return !*stop;
    };
    runWithProgress<imageio::AnimationResult>(
        progress, *mainWindow_,
        [scene = sceneForExport(), job, options, counted] {
            imageio::SurfaceLibrary surfaces;
            const SurfaceSource source = [&surfaces](const std::string& name) {
                return surfaces.surfaceNamed(name);
            };
            const FrameRange loop{0, options.frames - 1};
            return imageio::exportAnimation(job, [&](const FrameConsumer& consume) {
                return renderTurntable(*scene, options, job.settings.width, job.settings.height,
                                       loop, source, consume, counted);
            });
        },
        [this](imageio::AnimationResult& result) {
            loadMenuStatus();
            focusTable();
            if (!result.stopped && !result.error.empty())
                showFailure(text("animationFailed"), result.error);
        });
}

} // namespace orrery::window
