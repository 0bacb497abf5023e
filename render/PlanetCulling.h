#pragma once

#include "render/CoverGrid.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"
#include "render/PlanetUniforms.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

// Which planets a pass must draw at all, and which of them it may draw the cheap way.
namespace orrery::render {

// The picture as the passes see it: its frame, and how a depth in front of the eye becomes
// the depth buffer's value (clip z = depthA * z + depthB and clip w = -z for the eye's z).
struct DepthFrame {
    ScreenFrame screen;
    double depthA = 0.0;
    double depthB = 0.0;
};

// What a pass does with a planet that may touch its area.
enum class PassRole : std::uint8_t {
    // Nearer planets cover every pixel of the area it could touch, in a way that drawing it
    // cannot change any pixel: it is left out.
    hidden,
    // No other drawn planet touches its pixels in the area: drawn without depth test or
    // blending, which lay down the same bytes on a cleared canvas.
    alone,
    // Drawn in order, with depth test and blending.
    shared,
};

// A planet that may touch the pass's area, with what the roles need to know of it.
struct PassCandidate {
    const PlanetInstance* planet = nullptr;
    PixelBox reach;      // the pixels it may touch, edge included
    bool opaque = false; // its colour covers whatever lies behind it, where its disc does
};

// What a pass does with a candidate: its role, and the pieces of the picture (boxes of
// pixels, pieces[firstPiece, firstPiece + pieceCount) of the plan) it must be drawn over; it
// may be drawn over more, as elsewhere it leaves no trace.
struct PassPlanet {
    PassRole role = PassRole::hidden;
    std::size_t firstPiece = 0;
    std::size_t pieceCount = 0;
};

// What the roles need of a planet, as depth buffer values.
struct PlanetDepths {
    double nearest = -std::numeric_limits<double>::infinity(); // -inf: it reaches the eye
    double farthest = std::numeric_limits<double>::infinity();
    double innerCosine = 2.0; // of its inner disc's angular radius; above 1 for none
};

struct PassPlan {
    std::vector<PassPlanet> planets; // beside the candidates
    std::vector<PixelRect> pieces;
    // The box of the pixels where a drawn planet may leave a colour that lets what lies
    // behind show (a soft edge, a translucent planet); none: the pass leaves every pixel
    // empty or opaque.
    std::optional<PixelRect> soft;

    // What planning works with, kept from one pass to the next for its memory.
    struct Work {
        CoverGrid grid;
        std::vector<Span> spans;
        std::vector<PlanetDepths> depths;
        std::vector<Columns> inner;
        std::vector<Columns> shown;
        std::vector<PixelRect> pieces; // nearest planet first
    } work;
};

// Whether culling pays for a pass over `area` whose planets' reaches cover `painted` pixels
// of it: only where they paint it over a few times does it spare more than it costs.
bool cullingPays(double painted, const PixelRect& area);

// The part of each candidate, given in drawing order, in a pass that draws `area`; replaces
// the contents of `plan`. A planet is left out wherever the outcome of drawing every planet
// in order with the depth test (nearer wins, the first of equals) and blending provably
// leaves no trace of it: it lies wholly behind a nearer opaque planet's inner disc, and no
// soft or translucent colour between the two could let it show.
void assignPassRoles(const std::vector<PassCandidate>& candidates, const DepthFrame& frame,
                     const PixelRect& area, PassPlan& plan);

} // namespace orrery::render
