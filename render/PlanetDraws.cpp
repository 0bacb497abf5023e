#include "render/PlanetDraws.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orrery::render {
namespace {

// The silhouette's extent along one picture axis, as ray slopes: the two planes through
// the eye that hold the other picture axis and touch the sphere. `along` is the centre's
// coordinate on the axis, `depth` its distance in front of the eye (more than the radius).
std::pair<double, double> extent(double along, double depth, double radius) {
    const double a = depth * depth - radius * radius;
    const double s = radius * std::sqrt(along * along + a);
    return {(along * depth - s) / a, (along * depth + s) / a};
}

// Calls emit(first, count, general) for the runs of [begin, end) over which `general`
// holds or fails. A run where it fails joins its neighbours when it is shorter than
// `shortest` and does not fill the range, so that short runs cost no draw of their own.
template <typename General, typename Emit>
void mergedRuns(std::size_t begin, std::size_t end, std::size_t shortest, General general,
                Emit emit) {
    std::size_t pendingFirst = begin;
    std::size_t pendingCount = 0;
    bool pendingGeneral = false;
    for (std::size_t first = begin; first < end;) {
        const bool isGeneral = general(first);
        std::size_t last = first + 1;
        while (last < end && general(last) == isGeneral)
            ++last;
        const std::size_t count = last - first;
        const bool asGeneral = isGeneral || (count < shortest && count < end - begin);
        if (pendingCount > 0 && pendingGeneral == asGeneral) {
            pendingCount += count;
        } else {
            if (pendingCount > 0)
                emit(pendingFirst, pendingCount, pendingGeneral);
            pendingFirst = first;
            pendingCount = count;
            pendingGeneral = asGeneral;
        }
        first = last;
    }
    if (pendingCount > 0)
        emit(pendingFirst, pendingCount, pendingGeneral);
}

} // namespace

std::optional<PixelBox> silhouetteBox(const PlanetInstance& planet, const ScreenFrame& frame) {
    const double depth = -planet.center[2];
    const double radius = planet.radius;
    if (depth <= radius)
        return std::nullopt;
    const auto [left, right] = extent(planet.center[0], depth, radius);
    const auto [bottom, top] = extent(planet.center[1], depth, radius);
    const auto pixelX = [&](double slope) {
        return (slope / frame.ndcToRayX + 1.0) * 0.5 * frame.width;
    };
    const auto pixelY = [&](double slope) {
        return (slope / frame.ndcToRayY + 1.0) * 0.5 * frame.height;
    };
    return PixelBox{pixelX(left), pixelY(bottom), pixelX(right), pixelY(top)};
}

PlanetShape shapeOf(const PlanetInstance& planet, const ScreenFrame& frame) {
    const auto box = silhouetteBox(planet, frame);
    if (!box)
        return PlanetShape::quad;
    // The square the sprite shader draws: it holds the box's part on screen, edge included,
    // and its centre lies on screen.
    const auto reach = [](double low, double high, double size) {
        low = std::max(low, 0.0) - kEdgeMargin;
        high = std::min(high, size) + kEdgeMargin;
        const double middle = std::clamp((low + high) / 2, 0.5, size - 0.5);
        return std::max(middle - low, high - middle);
    };
    const double side = 2.0 * std::max(reach(box->left, box->right, frame.width),
                                       reach(box->bottom, box->top, frame.height));
    if (side > std::min(kLargestSprite, frame.maxSpriteSide))
        return PlanetShape::quad;
    return std::max(box->right - box->left, box->top - box->bottom) <= kLargestTinySprite
               ? PlanetShape::tinySprite
               : PlanetShape::sprite;
}

bool showsOnScreen(const PlanetInstance& planet, const ScreenFrame& frame) {
    const auto box = silhouetteBox(planet, frame);
    if (!box) // the sphere reaches the plane of the eye: it shows unless it lies behind
        return -planet.center[2] > -planet.radius;
    return box->right > -kEdgeMargin && box->left < frame.width + kEdgeMargin &&
           box->top > -kEdgeMargin && box->bottom < frame.height + kEdgeMargin;
}

double largestSurfaceRadius(const std::vector<PlanetInstance>& instances,
                            const ScreenFrame& frame) {
    double largest = 0.0;
    for (const PlanetInstance& planet : instances) {
        if (planet.surfaceLayer < 0.0f)
            continue;
        const auto box = silhouetteBox(planet, frame);
        if (!box)
            return std::numeric_limits<double>::infinity();
        largest = std::max(largest, std::max(box->right - box->left, box->top - box->bottom) / 2);
    }
    return largest;
}

void groupPlanetDraws(const std::vector<PlanetInstance>& instances, const ScreenFrame& frame,
                      std::vector<PlanetDraw>& draws) {
    draws.clear();
    std::vector<PlanetShape> shapes(instances.size());
    for (std::size_t i = 0; i < instances.size(); ++i)
        shapes[i] = shapeOf(instances[i], frame);
    const auto textured = [&](std::size_t i) {
        return instances[i].rampRow >= 0.0f || instances[i].surfaceLayer >= 0.0f;
    };
    const auto quad = [&](std::size_t i) {
        return shapes[i] == PlanetShape::quad;
    };
    const auto notTiny = [&](std::size_t i) {
        return shapes[i] != PlanetShape::tinySprite;
    };
    const auto emit = [&](std::size_t first, std::size_t count, bool withTextures,
                          PlanetShape shape) {
        draws.push_back(PlanetDraw{first, count, withTextures, shape});
    };
    // Textured sprites split once more, the tiny ones taking the cheaper texture reads.
    const auto emitSprites = [&](std::size_t first, std::size_t count, bool withTextures) {
        if (!withTextures)
            return emit(first, count, false, PlanetShape::sprite);
        mergedRuns(first, first + count, kShortestDraw, notTiny,
                   [&](std::size_t from, std::size_t planets, bool asSprites) {
                       emit(from, planets, true,
                            asSprites ? PlanetShape::sprite : PlanetShape::tinySprite);
                   });
    };
    mergedRuns(0, instances.size(), kShortestDraw, quad,
               [&](std::size_t first, std::size_t count, bool asQuads) {
                   mergedRuns(first, first + count, kShortestDraw, textured,
                              [&](std::size_t from, std::size_t planets, bool withTextures) {
                                  if (asQuads)
                                      emit(from, planets, withTextures, PlanetShape::quad);
                                  else
                                      emitSprites(from, planets, withTextures);
                              });
               });
}

} // namespace orrery::render
