#include "cli/ExitStatus.h"
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
#include "render/Renderer.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace orrery::cli {
namespace {

// Says early, before the rendering, that the file cannot be written; the write itself
// still reports anything this cannot foresee.
std::string outputFolderProblem(const std::string& output) {
    const std::filesystem::path folder = std::filesystem::path(output).parent_path();
    if (folder.empty())
        return {};
    std::error_code failure;
    const auto status = std::filesystem::status(folder, failure);
    if (!std::filesystem::exists(status))
        return "the folder " + folder.string() + " does not exist";
    if (!std::filesystem::is_directory(status))
        return folder.string() + " is not a folder";
    return {};
}

} // namespace

int renderCommand(const std::vector<std::string>& arguments, const Streams& io) {
    std::string error;
    const std::optional<RenderOptions> options = parseRenderOptions(arguments, error);
    if (!options)
        return fail(io.err, io.program, kBadUsage, error);

    OpenedProject project;
    if (!readProjectPackage(options->package, project, error))
        return fail(io.err, io.program, kBadInput, error);
    // The window offers export only while a planet is shown.
    if (!canExport(project.planets))
        return fail(io.err, io.program, kBadInput,
                    options->package + ": no planet is shown, so there is nothing to export");

    const DocumentSize size = packageDocumentSize(project);
    const int width = scaledSide(size.width, options->scale);
    const int height = scaledSide(size.height, options->scale);
    if (width < 1 || height < 1 || width > kLargestPictureSide || height > kLargestPictureSide)
        return fail(io.err, io.program, kBadUsage,
                    "--scale " + std::to_string(options->scale) + " makes the picture " +
                        std::to_string(width) + " x " + std::to_string(height) +
                        " pixels; each side must be 1 to " + std::to_string(kLargestPictureSide));
    if (const std::string problem = outputFolderProblem(options->output); !problem.empty())
        return fail(io.err, io.program, kCannotWrite, options->output + ": " + problem);

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
