#include "core/package/ProjectPackage.h"

#include "core/package/LightColorArchive.h"
#include "core/package/PackageFiles.h"
#include "core/package/PackageLimits.h"
#include "core/package/PlanetArchive.h"
#include "core/package/ProjectSettings.h"

#include <system_error>
#include <utility>

namespace orrery {
namespace {

namespace fs = std::filesystem;

// Reads one file of the package and decodes it; the error names the file.
template <typename Decode>
bool readPart(const fs::path& package, const char* name, std::size_t maxBytes, Decode decode,
              std::string& error) {
    const fs::path file = package / name;
    std::string bytes;
    std::string problem;
    if (!readFileBounded(file, maxBytes, bytes, problem) || !decode(bytes, problem)) {
        error = file.string() + ": " + problem;
        return false;
    }
    return true;
}

} // namespace

bool readProjectPackage(const fs::path& path, OpenedProject& project, std::string& error) {
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (!fs::exists(status)) {
        error = path.string() + ": " +
                (status.type() == fs::file_type::not_found ? "no such package" : failure.message());
        return false;
    }
    if (!fs::is_directory(status)) {
        error = path.string() + ": not a package (a package is a folder)";
        return false;
    }
    OpenedProject opened;
    const bool read = readPart(
                          path, kSettingsListFile, kSettingsListLimits.maxBytes,
                          [&](const std::string& bytes, std::string& problem) {
                              return decodeProjectSettings(bytes, opened.settings, problem);
                          },
                          error) &&
                      readPart(
                          path, kLightColorFile, kLightColorArchiveLimits.maxBytes,
                          [&](const std::string& bytes, std::string& problem) {
                              return decodeLightColorArchive(bytes, opened.lightColor, problem);
                          },
                          error) &&
                      readPart(
                          path, kPlanetListFile, kPlanetArchiveLimits.maxBytes,
                          [&](const std::string& bytes, std::string& problem) {
                              return decodePlanetArchive(bytes, opened.planets, problem);
                          },
                          error);
    if (!read)
        return false;
    checkOpenedSettings(opened);
    project = std::move(opened);
    return true;
}

bool writeProjectPackage(const fs::path& path, const ProjectDocument& document, std::string& error,
                         const FolderReplaceHooks& hooks) {
    std::vector<FileToWrite> files{{kPlanetListFile, {}},
                                   {kSettingsListFile, {}},
                                   {kLightColorFile, encodeLightColorArchive(document.lightColor)}};
    std::string problem;
    const bool saved =
        encodePlanetArchive(document.planets, files[0].bytes, problem) &&
        encodeProjectSettings(projectSettingsList(document), files[1].bytes, problem) &&
        replaceFolder(path, files, problem, hooks);
    if (!saved)
        error = "Could not save " + path.string() + ": " + problem;
    return saved;
}

} // namespace orrery
