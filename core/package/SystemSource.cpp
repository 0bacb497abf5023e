#include "core/package/SystemSource.h"

#include "core/package/EmbeddedSystem.h"
#include "core/package/PackageFiles.h"
#include "core/package/ProjectPackage.h"

#include <algorithm>
#include <cctype>
#include <system_error>

namespace orrery {
namespace {

// Our largest pictures, 16384 pixels a side, stay below this even uncompressed as TIFF.
constexpr std::size_t kMaxPictureBytes = std::size_t{1} << 30;

} // namespace

bool isSystemPictureName(std::string_view path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::any_of(
        kSystemPictureExtensions.begin(), kSystemPictureExtensions.end(),
        [&](std::string_view known) { return extension == "." + std::string(known); });
}

bool readSystem(const std::filesystem::path& path, OpenedProject& project, std::string& error) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure))
        return readProjectPackage(path, project, error);
    std::string bytes;
    std::string problem;
    const bool read =
        readFileBounded(path, kMaxPictureBytes, bytes, problem) &&
        systemFromPicture({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()},
                          project, problem);
    if (!read)
        error = path.string() + ": " + problem;
    return read;
}

} // namespace orrery
