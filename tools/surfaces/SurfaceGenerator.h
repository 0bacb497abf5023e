#pragma once

#include "core/styles/Image.h"
#include "tools/surfaces/Shader.h"

#include <functional>
#include <string>
#include <vector>

// The 48 planetary surfaces the program ships, drawn from noise. Each surface is an
// equirectangular picture: column u (0 to 1) is the longitude 360 u degrees, row v (0 to 1)
// the latitude 90 - 180 v degrees, so v = 0 is the north pole (+y). Every pixel samples its
// own point of the unit sphere, which keeps the left and right edges seamless and the
// poles free of pinching. Same size in, same bytes out, on every run.
namespace orrery::surfaces {

inline constexpr int kSurfaceWidth = 1024;
inline constexpr int kSurfaceHeight = 512;

struct SurfaceRecipe {
    std::string name;
    std::function<Shader()> make;
};

// Surfaces 1 to 48 in order (entry 0 is surface 1).
const std::vector<SurfaceRecipe>& surfaceRecipes();

// One surface (number 1 to 48) at any size; an empty image for other numbers.
Image renderSurface(int number, int width, int height);

// All surfaces in order, rendered by `threads` workers; the pictures do not depend on
// the number of workers.
std::vector<Image> renderAllSurfaces(int width, int height, unsigned threads);

} // namespace orrery::surfaces
