#pragma once

#include "render/PlanetUniforms.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace orrery::render {

// Pixels from left to right and bottom to top, inclusive; none when right < left.
struct Span {
    int left = std::numeric_limits<int>::max();
    int bottom = std::numeric_limits<int>::max();
    int right = std::numeric_limits<int>::min();
    int top = std::numeric_limits<int>::min();

    bool empty() const { return right < left || top < bottom; }
    void include(int x, int y);
    void include(const Span& other);
    PixelRect rect() const { return {left, bottom, right - left + 1, top - bottom + 1}; }
};

// The columns of one pixel row, inclusive; none when right < left.
using Columns = std::pair<int, int>;

// For each cell of 2 x 2 pixels of an area of the picture, a depth behind which nothing
// drawn before the planets seen so far can show at any of its pixels (see assignPassRoles),
// with a summary per block of 8 x 8 pixels so that most planets are found hidden without
// looking at their cells one by one. Its memory is kept from one pass to the next: fresh
// memory costs more than the pass.
class CoverGrid {
public:
    // Starts over on an area: nothing is known to hide anything, no planet is drawn. Without
    // `pixels`, only the blocks' counts of drawn planets are kept (hides and note are not
    // to be asked).
    void reset(const PixelRect& area, bool pixels);

    // Whether every pixel of the span lies behind what a depth of `nearest` can change.
    bool hides(const Span& span, double nearest) const;

    // Takes note of a planet drawn before the planets seen so far: at the pixels of its
    // inner disc (for each row of the span, the columns of `innerRows`, when it has any) an
    // opaque colour no deeper than innerFarthest(block's pixels) gives; elsewhere in the span,
    // a colour no nearer than `nearest` that may let what lies behind show. Sets `shown` to
    // columns of each row that hold every pixel where nothing hid the planet, and returns a
    // box of those where it lays down a soft colour.
    Span note(const Span& span, const std::vector<Columns>& innerRows, double nearest,
              const std::function<double(const Span& pixels)>& innerFarthest,
              std::vector<Columns>& shown);

    // Counts a planet drawn in the span's blocks, up to two; whether the span's blocks hold
    // no other.
    void countDrawn(const Span& span);
    bool drawnAlone(const Span& span) const;

private:
    Span cellsOf(const Span& pixels) const;
    Span pixelsOfCell(int column, int row) const;
    std::size_t cellAt(int column, int row) const;
    Span wholeBlock(std::size_t block) const; // its cells
    Span blockPixels(const Span& cells) const;
    // Calls visit(block, the cells' part in it) for each block the cells touch until it
    // returns false; whether none did.
    template <typename Visit> bool eachBlock(const Span& cells, Visit visit) const;

    PixelRect area_;
    int cellColumns_ = 0;
    int cellRows_ = 0;
    int blockColumns_ = 0;
    std::vector<float> behind_;      // per cell
    std::vector<float> blockBehind_; // per block: the deepest of its cells'
    std::vector<std::uint8_t> drawn_;
};

template <typename Visit> bool CoverGrid::eachBlock(const Span& cells, Visit visit) const {
    if (cells.empty())
        return true;
    constexpr int kBlockCells = 4;
    for (int row = cells.bottom / kBlockCells; row <= cells.top / kBlockCells; ++row) {
        const int bottom = std::max(cells.bottom, row * kBlockCells);
        const int top = std::min(cells.top, row * kBlockCells + kBlockCells - 1);
        for (int column = cells.left / kBlockCells; column <= cells.right / kBlockCells; ++column) {
            const Span inBlock{std::max(cells.left, column * kBlockCells), bottom,
                               std::min(cells.right, column * kBlockCells + kBlockCells - 1), top};
            const std::size_t block =
                static_cast<std::size_t>(row) * static_cast<std::size_t>(blockColumns_) +
                static_cast<std::size_t>(column);
            if (!visit(block, inBlock))
                return false;
        }
    }
    return true;
}

} // namespace orrery::render
