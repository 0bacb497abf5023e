#include "imageio/SurfaceLibrary.h"

#include "core/styles/SurfaceNames.h"
#include "core/support/Log.h"
#include "imageio/ImageFile.h"

#include <charconv>

namespace orrery::imageio {
namespace {

using PathOf = std::optional<std::filesystem::path> (*)(long);

// A miss is cached too, so a missing file is looked for once, not at every redraw.
const Image* cached(std::map<long, std::optional<Image>>& cache, long index, PathOf pathOf) {
    auto found = cache.find(index);
    if (found == cache.end()) {
        std::optional<Image> image;
        if (const auto path = pathOf(index)) {
            std::string error;
            image = readImageFile(path->string(), error);
            if (!image)
                logMessage(path->string() + ": " + error);
        }
        found = cache.emplace(index, std::move(image)).first;
    }
    return found->second ? &*found->second : nullptr;
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

const Image* SurfaceLibrary::surfaceNamed(std::string_view name) {
    const std::optional<long> index = surfaceIndexOf(name);
    return index ? surface(*index) : nullptr;
}

const Image* SurfaceLibrary::surface(long index) {
    return cached(surfaces_, index, surfaceImagePath);
}

const Image* SurfaceLibrary::thumbnail(long index) {
    return cached(thumbnails_, index, surfaceThumbnailPath);
}

} // namespace orrery::imageio
