#include "render/PlanetCulling.h"

#include "render/CoverGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orrery::render {
namespace {

// How far apart two depth buffer values must be before one counts as behind the other: far
// more than the shader's rounding and the buffer's 24 bits, far less than planets lie apart.
constexpr double kDepthMargin = 4e-6;
// How far inside the silhouette, in pixel angles, the inner disc stays: there the shader's
// edge coverage, which fades over at most 0.71 of a pixel angle, is exactly one.
constexpr double kInnerMargin = 1.5;
// Culling pays where the planets paint the area at least this many times over.
constexpr double kCullingPays = 2.0;
// Without culling, only a planet this large (in pixels of its span) is worth finding the
// soft pixels of: a smaller one counts as soft throughout.
constexpr int kLargeSpan = 64 * 64;
// A planet partly hidden is drawn in pieces, each a box around its shown pixels in a band
// of rows; two bands become one piece unless that draws more pixels than a piece costs.
constexpr int kBandRows = 16;
constexpr long kPieceCost = 256; // pixels: about what drawing one more piece costs

double bufferDepth(const DepthFrame& frame, double eyeDepth) {
    return 0.5 * (frame.depthB - frame.depthA * eyeDepth) / eyeDepth + 0.5;
}

PlanetDepths depthsOf(const PlanetInstance& planet, bool opaque, const DepthFrame& frame) {
    PlanetDepths depths;
    const double x = planet.center[0];
    const double y = planet.center[1];
    const double z = planet.center[2];
    const double radius = planet.radius;
    const double front = -z - radius;
    if (!(front > 0.0))
        return depths;
    depths.nearest = bufferDepth(frame, front) - kDepthMargin;
    depths.farthest = bufferDepth(frame, -z + radius) + kDepthMargin;
    const double distance = std::sqrt(x * x + y * y + z * z);
    const double pixelAngle = 2.0 * frame.screen.ndcToRayY / frame.screen.height;
    const double innerSine = radius / distance - kInnerMargin * pixelAngle;
    if (opaque && innerSine > 0.0)
        depths.innerCosine = std::sqrt(1.0 - innerSine * innerSine);
    return depths;
}

// The pixels of the area that a box overlaps.
Span pixelsOf(const PixelBox& reach, const PixelRect& area) {
    const auto low = [](double value, int limit) {
        return std::isnan(value) ? limit : static_cast<int>(std::max(std::floor(value), -1e9));
    };
    const auto high = [](double value, int limit) {
        return std::isnan(value) ? limit : static_cast<int>(std::min(std::ceil(value), 1e9)) - 1;
    };
    return {std::max(low(reach.left, area.x), area.x), std::max(low(reach.bottom, area.y), area.y),
            std::min(high(reach.right, area.x + area.width), area.x + area.width - 1),
            std::min(high(reach.top, area.y + area.height), area.y + area.height - 1)};
}

// For each pixel row of a span, the columns whose pixel centres lie within the planet's inner
// disc: a cone around the direction of its centre, met by the rays through the row in an
// interval.
void innerRows(const PlanetInstance& planet, double cosine, const Span& span,
               const ScreenFrame& screen, std::vector<Columns>& rows) {
    rows.clear();
    const double cx = planet.center[0];
    const double cy = planet.center[1];
    const double cz = planet.center[2];
    const double k = cosine * cosine * (cx * cx + cy * cy + cz * cz);
    const double a = cx * cx - k;
    for (int py = span.bottom; py <= span.top; ++py) {
        const double ry = ((py + 0.5) / screen.height * 2.0 - 1.0) * screen.ndcToRayY;
        // The ray (rx, ry, -1) lies within the cone where (rx cx + e)^2 >= k |ray|^2 and
        // rx cx + e >= 0.
        const double e = ry * cy - cz;
        const double b = 2.0 * cx * e;
        const double c = e * e - k * (ry * ry + 1.0);
        const double discriminant = b * b - 4.0 * a * c;
        std::pair<int, int> columns{0, -1};
        if (a < 0.0 && discriminant > 0.0) {
            const double root = std::sqrt(discriminant);
            const double lowRay = (-b + root) / (2.0 * a);
            const double highRay = (-b - root) / (2.0 * a);
            if ((lowRay + highRay) * 0.5 * cx + e > 0.0) {
                const auto centre = [&](double rx) {
                    return (rx / screen.ndcToRayX + 1.0) * 0.5 * screen.width - 0.5;
                };
                columns = {static_cast<int>(std::max(std::ceil(centre(lowRay)), -1e9)),
                           static_cast<int>(std::min(std::floor(centre(highRay)), 1e9))};
            }
        }
        rows.push_back(columns);
    }
}

// The farthest depth of a planet's inner disc within a block of pixels: the ray through a
// pixel at angle a from the centre's direction meets the sphere d cos a - sqrt(r^2 - d^2
// sin^2 a) along, which grows with a, and lies as deep as that times the cosine of the ray's
// angle to the view.
double innerFarthest(const PlanetInstance& planet, double innerCosine, const Span& pixels,
                     const DepthFrame& frame) {
    const ScreenFrame& screen = frame.screen;
    const double cx = planet.center[0];
    const double cy = planet.center[1];
    const double cz = planet.center[2];
    const double distance = std::sqrt(cx * cx + cy * cy + cz * cz);
    const double radius = planet.radius;
    const auto rayX = [&](int px) {
        return ((px + 0.5) / screen.width * 2.0 - 1.0) * screen.ndcToRayX;
    };
    const auto rayY = [&](int py) {
        return ((py + 0.5) / screen.height * 2.0 - 1.0) * screen.ndcToRayY;
    };
    // The widest angle is at a corner, and never beyond the inner disc.
    double cosine = 1.0;
    for (const int px : {pixels.left, pixels.right})
        for (const int py : {pixels.bottom, pixels.top}) {
            const double rx = rayX(px);
            const double ry = rayY(py);
            cosine = std::min(cosine, (rx * cx + ry * cy - cz) /
                                          (std::sqrt(rx * rx + ry * ry + 1.0) * distance));
        }
    cosine = std::max(cosine, innerCosine);
    const double sine2 = std::max(0.0, 1.0 - cosine * cosine);
    const double along =
        distance * cosine - std::sqrt(std::max(0.0, radius * radius - distance * distance * sine2));
    // The ray nearest the view's axis is the one through the pixel nearest the middle.
    const double nearX = std::clamp(0.0, rayX(pixels.left), rayX(pixels.right));
    const double nearY = std::clamp(0.0, rayY(pixels.bottom), rayY(pixels.top));
    const double eyeDepth = along / std::sqrt(nearX * nearX + nearY * nearY + 1.0);
    return bufferDepth(frame, eyeDepth) + kDepthMargin;
}

// The box of a span's pixels outside the inner disc's rows.
Span softPixels(const Span& span, const std::vector<Columns>& innerRows) {
    if (innerRows.empty())
        return span;
    Span soft;
    for (int y = span.bottom; y <= span.top; ++y) {
        const auto [left, right] = innerRows[static_cast<std::size_t>(y - span.bottom)];
        if (left > span.left || right < span.left) {
            soft.include(span.left, y);
            soft.include(std::clamp(left - 1, span.left, span.right), y);
        }
        if (right < span.right || left > span.right) {
            soft.include(span.right, y);
            soft.include(std::clamp(right + 1, span.left, span.right), y);
        }
    }
    return soft;
}

// Appends the pieces that hold the shown columns of a span's rows: a box per band of rows,
// bands joined while that costs fewer pixels than a piece.
void cutIntoPieces(const Span& span, const std::vector<Columns>& shown,
                   std::vector<PixelRect>& pieces) {
    const auto area = [](const Span& box) {
        return box.empty()
                   ? 0L
                   : static_cast<long>(box.right - box.left + 1) * (box.top - box.bottom + 1);
    };
    const auto add = [&pieces](const Span& box) {
        if (!box.empty())
            pieces.push_back(box.rect());
    };
    Span piece;
    for (int bandBottom = span.bottom; bandBottom <= span.top; bandBottom += kBandRows) {
        Span band;
        for (int y = bandBottom; y <= std::min(bandBottom + kBandRows - 1, span.top); ++y) {
            const auto [left, right] = shown[static_cast<std::size_t>(y - span.bottom)];
            if (left <= right) {
                band.include(left, y);
                band.include(right, y);
            }
        }
        Span joined = piece;
        joined.include(band);
        if (area(joined) - area(piece) - area(band) <= kPieceCost) {
            piece = joined;
            continue;
        }
        add(piece);
        piece = band;
    }
    add(piece);
}

} // namespace

bool cullingPays(double painted, const PixelRect& area) {
    return painted >= kCullingPays * area.width * area.height;
}

void assignPassRoles(const std::vector<PassCandidate>& candidates, const DepthFrame& frame,
                     const PixelRect& area, PassPlan& plan) {
    plan.planets.assign(candidates.size(), PassPlanet{});
    plan.pieces.clear();
    plan.soft.reset();
    if (area.width <= 0 || area.height <= 0)
        return;
    PassPlan::Work& work = plan.work;
    std::vector<Span>& spans = work.spans;
    std::vector<PlanetDepths>& depths = work.depths;
    std::vector<PixelRect>& pieces = work.pieces; // nearest planet first
    spans.resize(candidates.size());
    depths.resize(candidates.size());
    pieces.clear();
    double painted = 0.0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        spans[i] = pixelsOf(candidates[i].reach, area);
        depths[i] = depthsOf(*candidates[i].planet, candidates[i].opaque, frame);
        if (!spans[i].empty())
            painted += static_cast<double>(spans[i].rect().width) * spans[i].rect().height;
    }
    const bool culling = cullingPays(painted, area);
    CoverGrid& grid = work.grid;
    grid.reset(area, culling);
    Span soft;
    const auto innerOf = [&](std::size_t i) {
        work.inner.clear();
        if (depths[i].innerCosine <= 1.0)
            innerRows(*candidates[i].planet, depths[i].innerCosine, spans[i], frame.screen,
                      work.inner);
        return work.inner;
    };

    // Without culling, each planet is drawn whole; soft where its inner disc is not.
    for (std::size_t i = 0; i < candidates.size() && !culling; ++i) {
        if (spans[i].empty())
            continue;
        const std::size_t first = pieces.size();
        pieces.push_back(spans[i].rect());
        plan.planets[i] = {PassRole::shared, first, 1};
        // Only a large planet's inner disc spares much of its span.
        const PixelRect box = spans[i].rect();
        soft.include(box.width * box.height > kLargeSpan ? softPixels(spans[i], innerOf(i))
                                                         : spans[i]);
    }

    // With culling: nearest first. Each pixel keeps a depth behind which nothing drawn
    // before the planets seen so far can show; a planet lying behind it at every pixel it
    // touches is hidden. Why the depth holds: an opaque planet's inner disc lays its colour
    // down whole, and drawn before all the planets seen so far, it passes the depth test
    // unless one of those comes nearer; then that one's colour either covers it whole or,
    // soft or translucent, resets the depth.
    for (std::size_t i = candidates.size(); i-- > 0 && culling;) {
        const PlanetDepths& d = depths[i];
        if (grid.hides(spans[i], d.nearest))
            continue;
        soft.include(grid.note(
            spans[i], innerOf(i), d.nearest,
            [&](const Span& pixels) {
                return innerFarthest(*candidates[i].planet, d.innerCosine, pixels, frame);
            },
            work.shown));
        const std::size_t first = pieces.size();
        cutIntoPieces(spans[i], work.shown, pieces);
        plan.planets[i] = {PassRole::shared, first, pieces.size() - first};
    }
    if (!soft.empty())
        plan.soft = soft.rect();

    // Planets that share no block with another drawn one, and lie wholly within the depth
    // range, so that the depth test would pass all their colours: one piece, the whole span.
    for (std::size_t i = 0; i < candidates.size(); ++i)
        if (plan.planets[i].role != PassRole::hidden)
            grid.countDrawn(spans[i]);
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        PassPlanet& planet = plan.planets[i];
        if (planet.role == PassRole::hidden)
            continue;
        const std::size_t first = plan.pieces.size();
        if (depths[i].farthest < 1.0 - kDepthMargin && grid.drawnAlone(spans[i])) {
            plan.pieces.push_back(spans[i].rect());
            planet = {PassRole::alone, first, 1};
            continue;
        }
        const auto from = pieces.begin() + static_cast<std::ptrdiff_t>(planet.firstPiece);
        plan.pieces.insert(plan.pieces.end(), from,
                           from + static_cast<std::ptrdiff_t>(planet.pieceCount));
        planet.firstPiece = first;
    }
}

} // namespace orrery::render
