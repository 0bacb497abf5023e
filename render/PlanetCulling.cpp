#include "render/PlanetCulling.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orrery::render {
namespace {

// The roles are worked out on blocks of pixels: small enough to follow a planet's inner
// disc, large enough that the bookkeeping costs far less than the drawing it spares.
constexpr int kBlock = 8;
// How far apart two depth buffer values must be before one counts as behind the other: far
// more than the shader's rounding and the buffer's 24 bits, far less than planets lie apart.
constexpr double kDepthMargin = 4e-6;
// How far inside the silhouette, in pixel angles, the inner disc stays: there the shader's
// edge coverage, which fades over at most 0.71 of a pixel angle, is exactly one.
constexpr double kInnerMargin = 1.5;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Blocks from left to right and bottom to top, inclusive; none when right < left.
struct Blocks {
    int left = 0;
    int bottom = 0;
    int right = -1;
    int top = -1;
};

// What the roles need of a planet, as depth buffer values.
struct Depths {
    double nearest = -kInfinity; // no colour of it lies nearer; -inf: it reaches the eye
    double farthest = kInfinity; // no colour of it lies farther
    double innerFarthest = kInfinity;
    double innerCosine = 2.0; // of the inner disc's angular radius; above 1 for none
};

double bufferDepth(const DepthFrame& frame, double eyeDepth) {
    return 0.5 * (frame.depthB - frame.depthA * eyeDepth) / eyeDepth + 0.5;
}

Depths depthsOf(const PlanetInstance& planet, bool opaque, const DepthFrame& frame) {
    Depths depths;
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
    if (!opaque || !(innerSine > 0.0))
        return depths;
    // The visible cap ends at the circle where the eye's tangent cone touches the sphere;
    // its farthest point lies on that circle.
    const double tangent2 = distance * distance - radius * radius;
    const double axisZ = z / distance;
    const double rimDepth =
        -z * tangent2 / (distance * distance) +
        radius * std::sqrt(tangent2) / distance * std::sqrt(std::max(0.0, 1.0 - axisZ * axisZ));
    depths.innerFarthest = bufferDepth(frame, rimDepth) + kDepthMargin;
    depths.innerCosine = std::sqrt(1.0 - innerSine * innerSine);
    return depths;
}

Blocks blocksOf(const PixelBox& reach, const PixelRect& area) {
    const double left = std::isnan(reach.left) ? -kInfinity : reach.left;
    const double bottom = std::isnan(reach.bottom) ? -kInfinity : reach.bottom;
    const double right = std::isnan(reach.right) ? kInfinity : reach.right;
    const double top = std::isnan(reach.top) ? kInfinity : reach.top;
    const double x0 = std::max(left, static_cast<double>(area.x));
    const double y0 = std::max(bottom, static_cast<double>(area.y));
    const double x1 = std::min(right, static_cast<double>(area.x + area.width));
    const double y1 = std::min(top, static_cast<double>(area.y + area.height));
    if (!(x0 < x1 && y0 < y1))
        return {};
    // Every pixel the box overlaps.
    return {(static_cast<int>(std::floor(x0)) - area.x) / kBlock,
            (static_cast<int>(std::floor(y0)) - area.y) / kBlock,
            (static_cast<int>(std::ceil(x1)) - 1 - area.x) / kBlock,
            (static_cast<int>(std::ceil(y1)) - 1 - area.y) / kBlock};
}

// The block grid over the area, each block with a value.
template <typename Value> class BlockGrid {
public:
    BlockGrid(const PixelRect& area, Value initial)
        : area_(area), columns_((area.width + kBlock - 1) / kBlock),
          values_(static_cast<std::size_t>(columns_) * ((area.height + kBlock - 1) / kBlock),
                  initial) {}

    Value& at(int column, int row) {
        return values_[static_cast<std::size_t>(row) * columns_ + column];
    }

    // Calls visit(value, column, row) for each block until it returns false; whether none did.
    template <typename Visit> bool all(const Blocks& blocks, Visit visit) {
        for (int row = blocks.bottom; row <= blocks.top; ++row)
            for (int column = blocks.left; column <= blocks.right; ++column)
                if (!visit(at(column, row), column, row))
                    return false;
        return true;
    }

    // Whether the ray through every pixel centre of the block lies within `cosine` of the
    // direction of `center`: the cone is convex, so the block's four corner pixels tell.
    bool within(int column, int row, const PlanetInstance& planet, double cosine,
                const ScreenFrame& screen) const {
        const double cx = planet.center[0];
        const double cy = planet.center[1];
        const double cz = planet.center[2];
        const double distance = std::sqrt(cx * cx + cy * cy + cz * cz);
        const int x0 = area_.x + column * kBlock;
        const int y0 = area_.y + row * kBlock;
        const int x1 = std::min(x0 + kBlock, area_.x + area_.width) - 1;
        const int y1 = std::min(y0 + kBlock, area_.y + area_.height) - 1;
        for (const int px : {x0, x1}) {
            for (const int py : {y0, y1}) {
                const double rx = ((px + 0.5) / screen.width * 2.0 - 1.0) * screen.ndcToRayX;
                const double ry = ((py + 0.5) / screen.height * 2.0 - 1.0) * screen.ndcToRayY;
                const double along = rx * cx + ry * cy - cz;
                if (along < cosine * std::sqrt(rx * rx + ry * ry + 1.0) * distance)
                    return false;
            }
        }
        return true;
    }

private:
    PixelRect area_;
    int columns_;
    std::vector<Value> values_;
};

} // namespace

void assignPassRoles(const std::vector<PassCandidate>& candidates, const DepthFrame& frame,
                     const PixelRect& area, std::vector<PassRole>& roles) {
    roles.assign(candidates.size(), PassRole::shared);
    if (area.width <= 0 || area.height <= 0) {
        roles.assign(candidates.size(), PassRole::hidden);
        return;
    }
    std::vector<Blocks> spans(candidates.size());
    std::vector<Depths> depths(candidates.size());

    // Nearest first. Each block keeps a depth behind which nothing drawn before the planets
    // seen so far can show, or infinity. An opaque planet's inner disc covering the whole
    // block lowers it to the disc's farthest depth: its colour is laid down whole and, as the
    // last of the planets drawn from there on that comes nearer, passes the depth test. Any
    // other colour of a planet that may come nearer than the block's depth could let what
    // lies behind show through, and resets it.
    BlockGrid<double> behind(area, kInfinity);
    for (std::size_t i = candidates.size(); i-- > 0;) {
        const PassCandidate& candidate = candidates[i];
        spans[i] = blocksOf(candidate.reach, area);
        depths[i] = depthsOf(*candidate.planet, candidate.opaque, frame);
        const Depths& d = depths[i];
        const bool covered =
            behind.all(spans[i], [&](double depth, int, int) { return depth < d.nearest; });
        if (covered) {
            roles[i] = PassRole::hidden;
            continue;
        }
        behind.all(spans[i], [&](double& depth, int column, int row) {
            if (d.innerCosine <= 1.0 &&
                behind.within(column, row, *candidate.planet, d.innerCosine, frame.screen))
                depth = std::min(depth, d.innerFarthest);
            else if (d.nearest <= depth)
                depth = kInfinity;
            return true;
        });
    }

    // Planets that share no block with another drawn one, and lie wholly within the depth
    // range, so that the depth test would pass all their colours.
    BlockGrid<std::uint8_t> drawn(area, 0);
    for (std::size_t i = 0; i < candidates.size(); ++i)
        if (roles[i] != PassRole::hidden)
            drawn.all(spans[i], [](std::uint8_t& count, int, int) {
                count = static_cast<std::uint8_t>(std::min(count + 1, 2));
                return true;
            });
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (roles[i] == PassRole::hidden || !(depths[i].farthest < 1.0 - kDepthMargin))
            continue;
        if (drawn.all(spans[i], [](std::uint8_t count, int, int) { return count == 1; }))
            roles[i] = PassRole::alone;
    }
}

} // namespace orrery::render
