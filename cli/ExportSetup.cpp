#include "cli/ExportSetup.h"

#include "cli/RenderOptions.h"
#include "core/export/ExportChoices.h"
#include "core/export/PackageScene.h"
#include "core/package/ProjectPackage.h"
#include "render/Renderer.h"

#include <filesystem>
#include <system_error>

namespace orrery::cli {

std::optional<ExportSetup> prepareExport(const std::string& package, double scale,
                                         const std::string& output, ExitStatus& status,
                                         std::string& error) {
    ExportSetup setup;
    status = kBadInput;
    if (!readProjectPackage(package, setup.project, error))
        return std::nullopt;
    // The window offers export only while a planet is shown.
    if (!canExport(setup.project.planets)) {
        error = package + ": no planet is shown, so there is nothing to export";
        return std::nullopt;
    }
    const DocumentSize size = packageDocumentSize(setup.project);
    setup.width = scaledSide(size.width, scale);
    setup.height = scaledSide(size.height, scale);
    if (setup.width < 1 || setup.height < 1 || setup.width > kLargestPictureSide ||
        setup.height > kLargestPictureSide) {
        status = kBadUsage;
        error = "--scale " + std::to_string(scale) + " makes the picture " +
                std::to_string(setup.width) + " x " + std::to_string(setup.height) +
                " pixels; each side must be 1 to " + std::to_string(kLargestPictureSide);
        return std::nullopt;
    }
    if (const std::string problem = outputFolderProblem(output); !problem.empty()) {
        status = kCannotWrite;
        error = output + ": " + problem;
        return std::nullopt;
    }
    status = kDone;
    return setup;
}

std::string outputFolderProblem(const std::string& output) {
    std::string path = output;
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
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

} // namespace orrery::cli
