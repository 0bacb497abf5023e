#include "cli/ExitStatus.h"
#include "cli/ExportSetup.h"
#include "cli/RenderOptions.h"
#include "cli/Verbs.h"
#include "core/export/ExportChoices.h"
#include "core/export/ExportPicture.h"
#include "core/export/PackageScene.h"
#include "core/package/EmbeddedSystem.h"
#include "core/package/ProjectPackage.h"
#include "imageio/ImageFile.h"
#include "imageio/SurfaceLibrary.h"
#include "render/HeadlessRender.h"

#include <utility>

namespace orrery::cli {

int renderCommand(const std::vector<std::string>& arguments, const Streams& io) {
    std::string error;
    const std::optional<RenderOptions> options = parseRenderOptions(arguments, error);
    if (!options)
        return fail(io.err, io.program, kBadUsage, error);

    ExitStatus status = kDone;
    std::optional<ExportSetup> setup =
        prepareExport(options->package, options->scale, options->output, status, error);
    if (!setup)
        return fail(io.err, io.program, status, error);
    const OpenedProject& project = setup->project;
    const int width = setup->width;
    const int height = setup->height;

    SceneView view;
    loadPackageScene(view, project);
    imageio::SurfaceLibrary surfaces;
    const SurfaceSource surfaceSource = [&surfaces](const std::string& name) {
        return surfaces.surfaceNamed(name);
    };
    std::optional<Image> scene = renderSceneHeadless(view, width, height, surfaceSource, &error);
    if (!scene)
        return fail(io.err, io.program, kCannotWrite,
                    options->output + ": the picture could not be drawn: " + error);

    const Image picture =
        exportPicture(std::move(*scene), packageBackground(project), options->includeBackground);
    error = imageio::writeImageFile(picture, options->output, options->format,
                                    compressionFactor(options->quality),
                                    systemTextFields(project, options->format));
    if (!error.empty())
        return fail(io.err, io.program, kCannotWrite, options->output + ": " + error);
    return kDone;
}

} // namespace orrery::cli
