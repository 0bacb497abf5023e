#include "render/CoverGrid.h"

#include <algorithm>
#include <cmath>

namespace orrery::render {
namespace {

// Cells of 2 x 2 pixels keep a depth each: a quarter of the bookkeeping of single pixels,
// for a little less precision along the planets' edges. Blocks of 4 x 4 cells keep a summary.
constexpr int kCell = 2;
constexpr int kBlockCells = 4;
constexpr float kFarAway = std::numeric_limits<float>::infinity();

// The depths are kept as floats, rounded so that no claim grows by the rounding.
float floatBelow(double value) {
    const auto rounded = static_cast<float>(value);
    return rounded > value ? std::nextafter(rounded, -kFarAway) : rounded;
}

float floatAbove(double value) {
    const auto rounded = static_cast<float>(value);
    return rounded < value ? std::nextafter(rounded, kFarAway) : rounded;
}

} // namespace

void Span::include(int x, int y) {
    left = std::min(left, x);
    right = std::max(right, x);
    bottom = std::min(bottom, y);
    top = std::max(top, y);
}

void Span::include(const Span& other) {
    if (other.empty())
        return;
    include(other.left, other.bottom);
    include(other.right, other.top);
}

void CoverGrid::reset(const PixelRect& area, bool pixels) {
    area_ = area;
    cellColumns_ = (area.width + kCell - 1) / kCell;
    cellRows_ = (area.height + kCell - 1) / kCell;
    blockColumns_ = (cellColumns_ + kBlockCells - 1) / kBlockCells;
    const int blockRows = (cellRows_ + kBlockCells - 1) / kBlockCells;
    behind_.assign(
        pixels ? static_cast<std::size_t>(cellColumns_) * static_cast<std::size_t>(cellRows_) : 0,
        kFarAway);
    blockBehind_.assign(
        static_cast<std::size_t>(blockColumns_) * static_cast<std::size_t>(blockRows), kFarAway);
    drawn_.assign(blockBehind_.size(), 0);
}

Span CoverGrid::cellsOf(const Span& pixels) const {
    return {(pixels.left - area_.x) / kCell, (pixels.bottom - area_.y) / kCell,
            (pixels.right - area_.x) / kCell, (pixels.top - area_.y) / kCell};
}

Span CoverGrid::pixelsOfCell(int column, int row) const {
    const int x = area_.x + column * kCell;
    const int y = area_.y + row * kCell;
    return {x, y, std::min(x + kCell, area_.x + area_.width) - 1,
            std::min(y + kCell, area_.y + area_.height) - 1};
}

bool CoverGrid::hides(const Span& span, double nearest) const {
    if (span.empty())
        return true;
    const float limit = floatBelow(nearest);
    const Span cells = cellsOf(span);
    return eachBlock(cells, [&](std::size_t block, const Span& blockCells) {
        if (blockBehind_[block] < limit)
            return true;
        for (int row = blockCells.bottom; row <= blockCells.top; ++row) {
            const float* depth = &behind_[cellAt(blockCells.left, row)];
            for (int column = blockCells.left; column <= blockCells.right; ++column, ++depth)
                if (!(*depth < limit))
                    return false;
        }
        return true;
    });
}

Span CoverGrid::note(const Span& span, const std::vector<Columns>& innerRows, double nearest,
                     const std::function<double(const Span& pixels)>& innerFarthest,
                     std::vector<Columns>& shown) {
    shown.assign(static_cast<std::size_t>(span.top - span.bottom + 1),
                 {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
    Span soft;
    const float limit = floatBelow(nearest);
    // The inner columns of a pixel row; none outside the span.
    const auto innerOf = [&](int y) {
        if (y < span.bottom || y > span.top || innerRows.empty())
            return Columns{0, -1};
        return innerRows[static_cast<std::size_t>(y - span.bottom)];
    };
    eachBlock(cellsOf(span), [&](std::size_t block, const Span& blockCells) {
        // A cell already behind the planet's nearest stays as it is: the planet's colour
        // there can neither show nor lie nearer. At the others, the planet shows: the soft
        // ones lose their claim, the inner ones take the inner disc's depth (which lies no
        // nearer than that either, so it leaves the others as they are).
        float& summary = blockBehind_[block];
        if (summary < limit)
            return true;
        float inner = kFarAway;
        bool innerKnown = false;
        bool lowered = false;
        bool raised = false;
        for (int row = blockCells.bottom; row <= blockCells.top; ++row) {
            const Span rowPixels = pixelsOfCell(blockCells.left, row);
            // A cell is inner when every pixel of it is: both of its rows' intervals hold it.
            const auto [lowLeft, lowRight] = innerOf(rowPixels.bottom);
            const auto [highLeft, highRight] = innerOf(rowPixels.top);
            const int innerLeft = std::max(lowLeft, highLeft);
            const int innerRight = std::min(lowRight, highRight);
            int firstShown = blockCells.right + 1;
            int lastShown = blockCells.left - 1;
            int firstSoft = blockCells.right + 1;
            int lastSoft = blockCells.left - 1;
            float* depth = &behind_[cellAt(blockCells.left, row)];
            for (int column = blockCells.left; column <= blockCells.right; ++column, ++depth) {
                if (*depth < limit)
                    continue;
                firstShown = std::min(firstShown, column);
                lastShown = column;
                const int left = area_.x + column * kCell;
                const int right = std::min(left + kCell, area_.x + area_.width) - 1;
                if (left < innerLeft || right > innerRight) {
                    firstSoft = std::min(firstSoft, column);
                    lastSoft = column;
                    *depth = kFarAway;
                    raised = true;
                    continue;
                }
                if (!innerKnown) {
                    inner = floatAbove(innerFarthest(blockPixels(blockCells)));
                    innerKnown = true;
                }
                lowered = lowered || inner < *depth;
                *depth = std::min(*depth, inner);
            }
            if (firstShown > lastShown)
                continue;
            // The pixels of the cells from first to last, within the span.
            const auto pixelsBetween = [&](int first, int last) {
                Span pixels = pixelsOfCell(first, row);
                pixels.include(pixelsOfCell(last, row));
                return Span{std::max(pixels.left, span.left), std::max(pixels.bottom, span.bottom),
                            std::min(pixels.right, span.right), std::min(pixels.top, span.top)};
            };
            const Span shownPixels = pixelsBetween(firstShown, lastShown);
            for (int y = shownPixels.bottom; y <= shownPixels.top; ++y) {
                auto& [shownLeft, shownRight] = shown[static_cast<std::size_t>(y - span.bottom)];
                shownLeft = std::min(shownLeft, shownPixels.left);
                shownRight = std::max(shownRight, shownPixels.right);
            }
            if (firstSoft <= lastSoft)
                soft.include(pixelsBetween(firstSoft, lastSoft));
        }
        if (raised) {
            summary = kFarAway;
        } else if (lowered) {
            summary = 0.0f;
            const Span all = wholeBlock(block);
            for (int row = all.bottom; row <= all.top; ++row) {
                const float* depth = &behind_[cellAt(all.left, row)];
                summary =
                    std::max(summary, *std::max_element(depth, depth + all.right - all.left + 1));
            }
        }
        return true;
    });
    return soft;
}

void CoverGrid::countDrawn(const Span& span) {
    eachBlock(cellsOf(span), [&](std::size_t block, const Span&) {
        drawn_[block] = static_cast<std::uint8_t>(std::min(drawn_[block] + 1, 2));
        return true;
    });
}

bool CoverGrid::drawnAlone(const Span& span) const {
    return eachBlock(cellsOf(span),
                     [&](std::size_t block, const Span&) { return drawn_[block] == 1; });
}

std::size_t CoverGrid::cellAt(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cellColumns_) +
           static_cast<std::size_t>(column);
}

Span CoverGrid::wholeBlock(std::size_t block) const {
    const int column = static_cast<int>(block % static_cast<std::size_t>(blockColumns_));
    const int row = static_cast<int>(block / static_cast<std::size_t>(blockColumns_));
    return {column * kBlockCells, row * kBlockCells,
            std::min((column + 1) * kBlockCells, cellColumns_) - 1,
            std::min((row + 1) * kBlockCells, cellRows_) - 1};
}

Span CoverGrid::blockPixels(const Span& cells) const {
    Span pixels = pixelsOfCell(cells.left, cells.bottom);
    pixels.include(pixelsOfCell(cells.right, cells.top));
    return pixels;
}

} // namespace orrery::render
