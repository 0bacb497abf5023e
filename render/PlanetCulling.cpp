#include "render/PlanetCulling.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace orrery::render {
namespace {

// The roles are worked out on blocks of 8 x 8 pixels, one bit a pixel.
constexpr int kBlock = 8;
// How far apart two depth buffer values must be before one counts as behind the other: far
// more than the shader's rounding and the buffer's 24 bits, far less than planets lie apart.
constexpr double kDepthMargin = 4e-6;
// How far inside the silhouette, in pixel angles, the inner disc stays: there the shader's
// edge coverage, which fades over at most 0.71 of a pixel angle, is exactly one.
constexpr double kInnerMargin = 1.5;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
// A planet partly hidden is drawn in pieces, each a box around its shown pixels in a band
// of rows; two bands become one piece unless that draws more pixels than a piece costs.
constexpr int kBandRows = 16;
constexpr long kPieceCost = 256; // pixels: about what drawing one more piece costs

// Pixels from left to right and bottom to top, inclusive; none when right < left.
struct Span {
    int left = 0;
    int bottom = 0;
    int right = -1;
    int top = -1;
    bool empty() const { return right < left || top < bottom; }
    void include(int x, int y) {
        left = std::min(left, x);
        right = std::max(right, x);
        bottom = std::min(bottom, y);
        top = std::max(top, y);
    }
    void include(const Span& other) {
        if (other.empty())
            return;
        include(other.left, other.bottom);
        include(other.right, other.top);
    }
};

constexpr Span kNoPixels{std::numeric_limits<int>::max(), std::numeric_limits<int>::max(),
                         std::numeric_limits<int>::min(), std::numeric_limits<int>::min()};

// The columns of one pixel row, inclusive; none when right < left.
using Columns = std::pair<int, int>;

// What the roles need of a planet, as depth buffer values.
struct Depths {
    double nearest = -kInfinity; // no colour of it lies nearer; -inf: it reaches the eye
    double farthest = kInfinity; // no colour of it lies farther
    double innerCosine = 2.0;    // of the inner disc's angular radius; above 1 for none
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

// What lies behind each pixel of the area, with a summary per block of pixels so that most
// planets are found hidden without looking at their pixels one by one.
class CoverGrid {
public:
    explicit CoverGrid(const PixelRect& area)
        : area_(area), columns_((area.width + kBlock - 1) / kBlock),
          rows_((area.height + kBlock - 1) / kBlock),
          behind_(static_cast<std::size_t>(area.width) * area.height, kFarAway),
          blockBehind_(static_cast<std::size_t>(columns_) * rows_, kFarAway),
          drawn_(blockBehind_.size(), 0) {}

    // Whether every pixel of the span lies behind nothing nearer than `nearest` can change.
    bool hides(const Span& span, double nearest) const {
        const auto limit = static_cast<float>(nearest);
        return eachBlock(span, [&](int column, int row, const Span& pixels) {
            if (blockBehind_[blockAt(column, row)] < limit)
                return true;
            for (int y = pixels.bottom; y <= pixels.top; ++y) {
                const float* depth = &behind_[pixelAt(pixels.left, y)];
                for (int x = pixels.left; x <= pixels.right; ++x, ++depth)
                    if (!(*depth < limit))
                        return false;
            }
            return true;
        });
    }

    // Takes note of a planet drawn before the ones seen so far: at the pixels of its inner
    // disc (the rows' column intervals), an opaque colour no farther than innerFarthest(block
    // span) gives; elsewhere in the span, a colour no nearer than `nearest` that may let what
    // lies behind show, or none.
    // Sets `shown` to the columns of each row of the span where nothing hides the planet, and
    // returns the box of those where it lays down a soft colour.
    template <typename InnerFarthest>
    Span note(const Span& span, const std::vector<Columns>& innerRows, double nearest,
              InnerFarthest innerFarthest, std::vector<Columns>& shown) {
        shown.assign(static_cast<std::size_t>(span.top - span.bottom + 1),
                     {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
        Span soft = kNoPixels;
        const auto limit = static_cast<float>(nearest);
        eachBlock(span, [&](int column, int row, const Span& pixels) {
            const bool blockHidden = blockBehind_[blockAt(column, row)] < limit;
            float inner = kFarAway;
            bool innerKnown = false;
            for (int y = pixels.bottom; y <= pixels.top; ++y) {
                int innerLeft = 0;
                int innerRight = -1;
                if (!innerRows.empty())
                    std::tie(innerLeft, innerRight) =
                        innerRows[static_cast<std::size_t>(y - span.bottom)];
                float* depth = &behind_[pixelAt(pixels.left, y)];
                for (int x = pixels.left; x <= pixels.right; ++x, ++depth) {
                    const bool inside = x >= innerLeft && x <= innerRight;
                    if (!blockHidden && !(*depth < limit)) {
                        auto& [left, right] = shown[static_cast<std::size_t>(y - span.bottom)];
                        left = std::min(left, x);
                        right = std::max(right, x);
                        if (!inside)
                            soft.include(x, y);
                    }
                    if (inside) {
                        if (!innerKnown) {
                            inner = static_cast<float>(innerFarthest(pixels));
                            innerKnown = true;
                        }
                        *depth = std::min(*depth, inner);
                    } else if (nearest <= *depth) {
                        *depth = kFarAway;
                    }
                }
            }
            float& summary = blockBehind_[blockAt(column, row)];
            summary = 0.0f;
            const Span whole = blockPixels(column, row);
            for (int y = whole.bottom; y <= whole.top; ++y) {
                const float* depth = &behind_[pixelAt(whole.left, y)];
                summary = std::max(summary,
                                   *std::max_element(depth, depth + whole.right - whole.left + 1));
            }
            return true;
        });
        return soft;
    }

    // Counts a planet drawn in the span's blocks, up to two.
    void countDrawn(const Span& span) {
        eachBlock(span, [&](int column, int row, const Span&) {
            std::uint8_t& count = drawn_[blockAt(column, row)];
            count = static_cast<std::uint8_t>(std::min(count + 1, 2));
            return true;
        });
    }

    // Whether the span's blocks hold no other drawn planet.
    bool drawnAlone(const Span& span) const {
        return eachBlock(span, [&](int column, int row, const Span&) {
            return drawn_[blockAt(column, row)] == 1;
        });
    }

private:
    static constexpr float kFarAway = std::numeric_limits<float>::infinity();

    std::size_t blockAt(int column, int row) const {
        return static_cast<std::size_t>(row) * columns_ + column;
    }
    std::size_t pixelAt(int x, int y) const {
        return static_cast<std::size_t>(y - area_.y) * area_.width + (x - area_.x);
    }
    Span blockPixels(int column, int row) const {
        const int x0 = area_.x + column * kBlock;
        const int y0 = area_.y + row * kBlock;
        return {x0, y0, std::min(x0 + kBlock, area_.x + area_.width) - 1,
                std::min(y0 + kBlock, area_.y + area_.height) - 1};
    }

    // Calls visit(column, row, the span's pixels in the block) for each block the span
    // touches until it returns false; whether none did.
    template <typename Visit> bool eachBlock(const Span& span, Visit visit) const {
        if (span.empty())
            return true;
        for (int row = (span.bottom - area_.y) / kBlock; row <= (span.top - area_.y) / kBlock;
             ++row) {
            for (int column = (span.left - area_.x) / kBlock;
                 column <= (span.right - area_.x) / kBlock; ++column) {
                const Span block = blockPixels(column, row);
                const Span pixels{std::max(span.left, block.left),
                                  std::max(span.bottom, block.bottom),
                                  std::min(span.right, block.right), std::min(span.top, block.top)};
                if (!visit(column, row, pixels))
                    return false;
            }
        }
        return true;
    }

    PixelRect area_;
    int columns_;
    int rows_;
    std::vector<float> behind_;      // per pixel: nothing drawn earlier shows behind this depth
    std::vector<float> blockBehind_; // per block: the farthest of its pixels'
    std::vector<std::uint8_t> drawn_;
};

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
            pieces.push_back(
                {box.left, box.bottom, box.right - box.left + 1, box.top - box.bottom + 1});
    };
    Span piece = kNoPixels;
    for (int bandBottom = span.bottom; bandBottom <= span.top; bandBottom += kBandRows) {
        Span band = kNoPixels;
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

void assignPassRoles(const std::vector<PassCandidate>& candidates, const DepthFrame& frame,
                     const PixelRect& area, PassPlan& plan) {
    plan.planets.assign(candidates.size(), PassPlanet{});
    plan.pieces.clear();
    plan.soft.reset();
    if (area.width <= 0 || area.height <= 0)
        return;
    std::vector<Span> spans(candidates.size());
    std::vector<Depths> depths(candidates.size());
    std::vector<Columns> inner;
    std::vector<Columns> shown;
    std::vector<PixelRect> pieces; // nearest planet first
    Span soft = kNoPixels;

    // Nearest first. Each pixel keeps a depth behind which nothing drawn before the planets
    // seen so far can show; a planet lying behind it at every pixel it touches is hidden.
    // Why the depth holds: an opaque planet's inner disc lays its colour down whole, and
    // drawn before all the planets seen so far, it passes the depth test unless one of those
    // comes nearer; then that one's colour either covers it whole or, soft or translucent,
    // resets the depth.
    CoverGrid grid(area);
    for (std::size_t i = candidates.size(); i-- > 0;) {
        const PassCandidate& candidate = candidates[i];
        spans[i] = pixelsOf(candidate.reach, area);
        depths[i] = depthsOf(*candidate.planet, candidate.opaque, frame);
        const Depths& d = depths[i];
        if (spans[i].empty() || grid.hides(spans[i], d.nearest))
            continue;
        inner.clear();
        if (d.innerCosine <= 1.0)
            innerRows(*candidate.planet, d.innerCosine, spans[i], frame.screen, inner);
        soft.include(grid.note(
            spans[i], inner, d.nearest,
            [&](const Span& pixels) {
                return innerFarthest(*candidate.planet, d.innerCosine, pixels, frame);
            },
            shown));
        const std::size_t first = pieces.size();
        cutIntoPieces(spans[i], shown, pieces);
        plan.planets[i] = {PassRole::shared, first, pieces.size() - first};
    }
    if (!soft.empty())
        plan.soft = PixelRect{soft.left, soft.bottom, soft.right - soft.left + 1,
                              soft.top - soft.bottom + 1};

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
            const Span& span = spans[i];
            plan.pieces.push_back(
                {span.left, span.bottom, span.right - span.left + 1, span.top - span.bottom + 1});
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
