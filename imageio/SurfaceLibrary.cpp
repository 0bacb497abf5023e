#include "imageio/SurfaceLibrary.h"

#include "core/styles/SurfaceNames.h"
#include "core/support/Log.h"
#include "imageio/ImageFile.h"

#include <charconv>

namespace orrery::imageio {
namespace {

// The image at the path, if any; a file that exists but cannot be read is logged.
std::optional<Image> decoded(const std::optional<std::filesystem::path>& path) {
    if (!path)
        return std::nullopt;
    std::string error;
    std::optional<Image> image = readImageFile(path->string(), error);
    if (!image)
        logMessage(path->string() + ": " + error);
    return image;
}

// The index of "Surface" followed by digits; none for any other name.
std::optional<long> surfaceIndexOf(std::string_view name) {
    constexpr std::string_view prefix = "Surface";
    if (!name.starts_with(prefix))
        return std::nullopt;
    const std::string_view digits = name.substr(prefix.size());
    long index = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size() ||
        surfaceName(index) != name)
        return std::nullopt;
    return index;
}

} // namespace

std::optional<Image> SurfaceLibrary::surface(long index) const {
    return decoded(surfaceImagePath(index));
}

std::optional<Image> SurfaceLibrary::surfaceNamed(std::string_view name) const {
    const std::optional<long> index = surfaceIndexOf(name);
    return index ? surface(*index) : std::nullopt;
}

const Image* SurfaceLibrary::thumbnail(long index) {
    // A miss is kept too, so a missing file is looked for once, not at every redraw.
    auto found = thumbnails_.find(index);
    if (found == thumbnails_.end())
        found = thumbnails_.emplace(index, decoded(surfaceThumbnailPath(index))).first;
    return found->second ? &*found->second : nullptr;
}

} // namespace orrery::imageio
