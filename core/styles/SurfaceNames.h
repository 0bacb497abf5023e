#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// Where the surface images live. The 48 surfaces are generated files; decoding them is
// left to the front end, which asks here for their names and places.
namespace orrery {

inline constexpr long kSurfaceCount = 48;

// "Surface%03ld": 3 gives "Surface003".
std::string surfaceName(long index);

// The folders that may hold the surface files, in the order they are tried: the folder
// named by ORRERY_SURFACE_DIR, the installed share/orrery/surfaces beside the executable's
// folder, and the folder the build writes them to.
std::vector<std::filesystem::path> surfaceDirectoryCandidates();

// The first candidate that is an existing folder; none when there is no such folder.
std::optional<std::filesystem::path> findSurfaceDirectory();

// The full-size image and the menu thumbnail of a surface index. None when the surface
// folder or the file is missing: that simply means "no surface", not an error.
std::optional<std::filesystem::path> surfaceImagePath(long index);
std::optional<std::filesystem::path> surfaceThumbnailPath(long index);

} // namespace orrery
