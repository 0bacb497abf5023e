#pragma once

#include "render/PlanetInstances.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orrery::render {

// The picture the planets are drawn into, as the per-planet decisions need it. The eye
// looks down -z; a ray through the right (top) edge of the picture has the slope
// ndcToRayX (ndcToRayY).
struct ScreenFrame {
    double ndcToRayX = 1.0;
    double ndcToRayY = 1.0;
    int width = 0; // pixels
    int height = 0;
    double maxSpriteSide = 0.0; // the largest point sprite the OpenGL allows, in pixels
};

// How far the smoothed edge of a silhouette reaches past it: pixels whose centres lie
// within half a pixel get part of the colour; the rest is room for rounding.
inline constexpr double kEdgeMargin = 0.55;

// How a planet is drawn, from the most particular to the most general: a planet may always
// be drawn by a more general shape. Planets whose drawn square is at most kLargestSprite
// pixels a side are point sprites: one vertex and one square instead of four vertices and
// two triangles, which a software rasteriser pays for per planet and, for small squares,
// per block of pixels along the shared diagonal. Sprites whose whole silhouette is at most
// kLargestTinySprite pixels across are tiny: they read one texel of a surface where a
// larger planet filters four, a difference that no pixel of theirs shows.
enum class PlanetShape { tinySprite, sprite, quad };
inline constexpr double kLargestSprite = 128.0;
inline constexpr double kLargestTinySprite = 8.0;

// A silhouette's bounding box in pixels from the bottom-left corner of the picture.
struct PixelBox {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;
};

// The box around the planet's silhouette; none when the sphere reaches the plane of the
// eye, where the silhouette is unbounded.
std::optional<PixelBox> silhouetteBox(const PlanetInstance& planet, const ScreenFrame& frame);

// How the planet is drawn: as a point sprite when the part of its box on screen, edge
// included, fits in a sprite.
PlanetShape shapeOf(const PlanetInstance& planet, const ScreenFrame& frame);

// Whether the planet leaves any pixel on screen.
bool showsOnScreen(const PlanetInstance& planet, const ScreenFrame& frame);

// The radius in pixels (half the larger side of the box) of the largest planet that wears a
// surface; 0 when none does, infinite when one reaches the plane of the eye.
double largestSurfaceRadius(const std::vector<PlanetInstance>& instances, const ScreenFrame& frame);

// The pixels a pass draws a planet at, as its vertex shader takes them: a box in pixels from
// the bottom-left corner of the picture.
struct DrawnPixels {
    float left = 0.0f;
    float bottom = 0.0f;
    float right = 0.0f;
    float top = 0.0f;
};

// Consecutive planets, in drawing order, drawn by one shader and one kind of primitive.
struct PlanetDraw {
    std::size_t first = 0;
    std::size_t count = 0;
    bool textured = false; // with the texture work, or plain
    PlanetShape shape = PlanetShape::quad;
    bool alone = false; // nothing else drawn touches its planets' pixels (see PassRole)
    // Sprites drawn as one rectangle per piece of the picture they are drawn over, rather
    // than as one point each (see PassPlanet).
    bool inPieces = false;
};

// Fewer planets in a row than this, among ones that need the more general shader or shape,
// are drawn with those: a draw of their own would cost more than it saves. So are plain
// planets among textured ones, sprites among quads and tiny sprites among larger ones.
inline constexpr std::size_t kShortestDraw = 16;

// Splits the planets into draws that keep their order, replacing the contents of `draws`
// (its capacity is reused), so that plain planets skip the texture work and small ones
// are drawn as sprites. Plain sprites are never tiny: without textures the two are one.
void groupPlanetDraws(const std::vector<PlanetInstance>& instances, const ScreenFrame& frame,
                      std::vector<PlanetDraw>& draws);

} // namespace orrery::render
