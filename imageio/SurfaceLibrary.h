#pragma once

#include "core/styles/Image.h"

#include <map>
#include <optional>
#include <string_view>

namespace orrery::imageio {

// The surface images "Surface001" to "Surface048" and their menu thumbnails, decoded on
// first use from the surface folder that the styles lookup finds and kept for the life of
// the library. A surface that is missing (or damaged) gives nothing: the planet is then
// drawn without one. Used from one thread.
class SurfaceLibrary {
public:
    // The images stay valid as long as the library does.
    const Image* surface(long index);
    const Image* thumbnail(long index);
    // By the name the renderer asks for ("Surface007"); any other name gives nothing.
    const Image* surfaceNamed(std::string_view name);

private:
    std::map<long, std::optional<Image>> surfaces_;
    std::map<long, std::optional<Image>> thumbnails_;
};

} // namespace orrery::imageio
