#include "render/CoverGrid.h"

#include <gtest/gtest.h>

#include <vector>

namespace orrery::render {
namespace {

constexpr PixelRect kArea{0, 0, 64, 48};

// Every row of a span inside the inner disc, or none of them.
std::vector<Columns> innerThroughout(const Span& span, bool inner) {
    return std::vector<Columns>(static_cast<std::size_t>(span.top - span.bottom + 1),
                                inner ? Columns{span.left, span.right} : Columns{0, -1});
}

// Notes a planet over the span whose colours lie no nearer than `nearest`, its inner disc
// (when `inner`) no deeper than `innerDepth`; returns its soft box.
Span note(CoverGrid& grid, const Span& span, double nearest, bool inner, double innerDepth = 1.0) {
    std::vector<Columns> shown;
    return grid.note(
        span, innerThroughout(span, inner), nearest,
        [innerDepth](const Span&) { return innerDepth; }, shown);
}

// An opaque inner disc hides what lies behind it, not what lies in front; a soft colour
// drawn before it, nearer, takes the claim back there and only there.
TEST(CoverGrid, InnerDiscsHideWhatLiesBehindUntilASoftColourComesNearer) {
    CoverGrid grid;
    grid.reset(kArea, true);
    const Span disc{8, 8, 39, 39};
    EXPECT_FALSE(grid.hides(disc, 0.9)); // nothing drawn yet hides anything
    note(grid, disc, 0.4, true, 0.5);
    EXPECT_TRUE(grid.hides({10, 10, 20, 20}, 0.6));
    EXPECT_FALSE(grid.hides({10, 10, 20, 20}, 0.45));
    EXPECT_FALSE(grid.hides({30, 30, 44, 44}, 0.6)); // partly outside the disc

    // A soft edge nearer than the disc, drawn before it: what lies behind shows there.
    const Span soft = note(grid, {12, 12, 15, 15}, 0.3, false);
    EXPECT_EQ(soft.rect(), (PixelRect{12, 12, 4, 4}));
    EXPECT_FALSE(grid.hides({12, 12, 15, 15}, 0.6));
    EXPECT_TRUE(grid.hides({24, 24, 31, 31}, 0.6));
    // One lying behind the disc leaves it as it was.
    note(grid, {24, 24, 31, 31}, 0.7, false);
    EXPECT_TRUE(grid.hides({24, 24, 31, 31}, 0.6));
}

// A cell is claimed only when every pixel of it lies in the inner disc.
TEST(CoverGrid, HalfCoveredCellsClaimNothing) {
    CoverGrid grid;
    grid.reset(kArea, true);
    note(grid, {9, 9, 38, 38}, 0.4, true, 0.5); // odd edges: the outer cells are half inside
    EXPECT_TRUE(grid.hides({10, 10, 37, 37}, 0.6));
    EXPECT_FALSE(grid.hides({9, 9, 9, 9}, 0.6));
    EXPECT_FALSE(grid.hides({38, 20, 38, 20}, 0.6));
}

// Planets are alone where no other drawn one shares a block of 8 x 8 pixels.
TEST(CoverGrid, CountsPlanetsDrawnPerBlock) {
    CoverGrid grid;
    grid.reset(kArea, false);
    grid.countDrawn({0, 0, 7, 7});
    grid.countDrawn({16, 0, 23, 7});
    grid.countDrawn({20, 4, 27, 11});
    EXPECT_TRUE(grid.drawnAlone({0, 0, 7, 7}));
    EXPECT_FALSE(grid.drawnAlone({16, 0, 23, 7}));
}

} // namespace
} // namespace orrery::render
