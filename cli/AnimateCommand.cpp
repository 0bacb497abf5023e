#include "cli/AnimateOptions.h"
#include "cli/ExitStatus.h"
#include "cli/ExportSetup.h"
#include "cli/Verbs.h"
#include "core/export/ExportChoices.h"
#include "core/export/PackageScene.h"
#include "imageio/AnimationExport.h"
#include "imageio/SurfaceLibrary.h"
#include "render/TurntableRender.h"

#include <csignal>

namespace orrery::cli {
namespace {

// Ctrl+C or a scheduler's TERM stops the run between frames, so that the writer can take
// away what it wrote rather than leave a hidden temporary behind.
volatile std::sig_atomic_t stopAsked = 0;
extern "C" void askToStop(int) {
    stopAsked = 1;
}

} // namespace

int animateCommand(const std::vector<std::string>& arguments, const Streams& io) {
    std::string error;
    const std::optional<AnimateOptions> options = parseAnimateOptions(arguments, error);
    if (!options)
        return fail(io.err, io.program, kBadUsage, error);
    const AnimationOptions& animation = options->animation;

    ExitStatus status = kDone;
    std::optional<ExportSetup> setup =
        prepareExport(options->package, animation.scale, options->output, status, error);
    if (!setup)
        return fail(io.err, io.program, status, error);

    const FrameRange range = options->range.value_or(FrameRange{0, animation.frames - 1});
    imageio::AnimationJob job;
    job.format = options->format;
    job.path = options->output;
    job.settings.width = setup->width;
    job.settings.height = setup->height;
    job.settings.fps = animation.fps;
    job.settings.frames = animation.frames;
    job.settings.firstFrame = range.first;
    job.settings.compression = compressionFactor(animation.quality);
    job.settings.loopPalette = animation.loopPalette;
    job.background = packageBackground(setup->project);
    job.includeBackground = animation.includeBackground;

    SceneView view;
    loadPackageScene(view, setup->project);
    imageio::SurfaceLibrary surfaces;
    const SurfaceSource surfaceSource = [&surfaces](const std::string& name) {
        return surfaces.surfaceNamed(name);
    };
    stopAsked = 0;
    std::signal(SIGINT, askToStop);
    std::signal(SIGTERM, askToStop);
    const imageio::AnimationResult result =
        imageio::exportAnimation(job, [&](const FrameConsumer& consume) {
            return renderTurntable(view, animation, setup->width, setup->height, range,
                                   surfaceSource, consume, [](int, int) { return stopAsked == 0; });
        });
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    if (result.stopped)
        return fail(io.err, io.program, kCannotWrite,
                    options->output + ": stopped before the last frame; nothing was written");
    if (!result.error.empty())
        return fail(io.err, io.program, kCannotWrite, options->output + ": " + result.error);
    return kDone;
}

} // namespace orrery::cli
