#include "core/styles/SurfaceNames.h"

#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace orrery {
namespace {

std::optional<std::filesystem::path> executableDirectory() {
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error || executable.empty())
        return std::nullopt;
    return executable.parent_path();
}

bool isDirectory(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::optional<std::filesystem::path> existingFile(const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::is_regular_file(path, error))
        return path;
    return std::nullopt;
}

std::optional<std::filesystem::path> fileInSurfaceDirectory(const std::filesystem::path& relative) {
    const std::optional<std::filesystem::path> directory = findSurfaceDirectory();
    if (!directory)
        return std::nullopt;
    return existingFile(*directory / relative);
}

} // namespace

std::string surfaceName(long index) {
    char name[32];
    std::snprintf(name, sizeof name, "Surface%03ld", index);
    return name;
}

std::vector<std::filesystem::path> surfaceDirectoryCandidates() {
    std::vector<std::filesystem::path> candidates;
    if (const char* chosen = std::getenv("ORRERY_SURFACE_DIR");
        chosen != nullptr && *chosen != '\0')
        candidates.emplace_back(chosen);
    if (const auto directory = executableDirectory())
        candidates.push_back(*directory / ".." / "share" / "orrery" / "surfaces");
#ifdef ORRERY_BUILD_SURFACE_DIR
    candidates.emplace_back(ORRERY_BUILD_SURFACE_DIR);
#endif
    return candidates;
}

std::optional<std::filesystem::path> findSurfaceDirectory() {
    for (const std::filesystem::path& candidate : surfaceDirectoryCandidates())
        if (isDirectory(candidate))
            return candidate.lexically_normal();
    return std::nullopt;
}

std::optional<std::filesystem::path> surfaceImagePath(long index) {
    return fileInSurfaceDirectory(surfaceName(index) + ".png");
}

std::optional<std::filesystem::path> surfaceThumbnailPath(long index) {
    return fileInSurfaceDirectory(std::filesystem::path("thumbs") / (surfaceName(index) + ".png"));
}

} // namespace orrery
