#pragma once

#include "core/styles/Image.h"

#include <map>
#include <optional>
#include <string_view>

namespace orrery::imageio {

// The surface images "Surface001" to "Surface048" and their menu thumbnails, from the
// surface folder that the styles lookup finds. A surface that is missing (or damaged)
// gives nothing: the planet is then drawn without one. Used from one thread.
class SurfaceLibrary {
public:
    // Decoded anew at every call and handed over: the renderer keeps the pixels where it
    // draws them, and a copy kept here would only double the memory.
    std::optional<Image> surface(long index) const;
    // By the name the renderer asks for ("Surface007"); any other name gives nothing.
    std::optional<Image> surfaceNamed(std::string_view name) const;

    // Thumbnails are small and shown often: decoded on first use and kept for the life of
    // the library.
    const Image* thumbnail(long index);

private:
    std::map<long, std::optional<Image>> thumbnails_;
};

} // namespace orrery::imageio
