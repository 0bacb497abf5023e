#include "RenderTestSupport.h"

#include "render/PictureTiles.h"

#include <random>
#include <utility>
#include <vector>

namespace orrery::testing {
namespace {

using TiledPicture = RenderTest;

constexpr int kWidth = 640;
constexpr int kHeight = 400;

// Planets across the tiles' borders in every way: small sprites and large quads, soft edges,
// translucent colours, planets hidden behind, meeting or inside others, one reaching past
// the eye; enough of them that the whole picture is planned in bands, the tiles not.
void strewPlanets(SceneView& view) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int i = 0; i < 5000; ++i) {
        const double z = -900.0 + 1300.0 * unit(random);
        const double reach = (500.0 - z) * 0.45;
        const Color colour{unit(random), unit(random), unit(random), i % 7 == 0 ? 0.5 : 1.0};
        view.createPlanet2(std::to_string(i), colour, i % 3 == 0 ? 0 : 1 + i % 84, i % 4,
                           std::to_string((unit(random) * 2 - 1) * reach * 1.5),
                           std::to_string((unit(random) * 2 - 1) * reach), std::to_string(z),
                           std::to_string(1.0 + 30.0 * unit(random) * unit(random) * unit(random)));
    }
    view.createPlanet2("inside", {0.9, 0.8, 0.1, 1.0}, 5, 2, "-20", "10", "-50", "60");
    view.createPlanet2("near", {0.9, 0.2, 0.2, 1.0}, 0, 1, "60", "-40", "400", "130");
}

// A picture drawn in tiles is, to the byte, the one drawn whole, whatever the tiles: they
// share the picture's pixels, slopes and hidden planets; and each tile is reported done.
TEST_F(TiledPicture, TilesJoinIntoThePictureDrawnWhole) {
    surfaces["Surface001"] = solidImage(64, 32, {0, 90, 0, 255});
    surfaces["Surface002"] = solidImage(64, 32, {90, 0, 40, 255});
    SceneView view;
    view.setViewSize(kWidth, kHeight);
    strewPlanets(view);
    std::string error;
    const auto whole = renderer->renderImage(view, kWidth, kHeight, &error);
    ASSERT_TRUE(whole) << error;
    for (const int side : {96, 130, 256}) {
        std::vector<std::pair<int, int>> reports;
        const auto tiled = renderer->renderImage(view, kWidth, kHeight, &error,
                                                 {side, [&reports](int done, int total) {
                                                      reports.emplace_back(done, total);
                                                  }});
        ASSERT_TRUE(tiled) << error;
        std::size_t differing = 0;
        for (std::size_t b = 0; b < whole->pixels.size(); ++b)
            differing += tiled->pixels[b] != whole->pixels[b] ? 1 : 0;
        EXPECT_EQ(differing, 0u) << "tiles of " << side;
        const auto tiles = static_cast<int>(render::pictureTiles(kWidth, kHeight, side).size());
        ASSERT_EQ(reports.size(), static_cast<std::size_t>(tiles));
        EXPECT_EQ(reports.front(), std::pair(1, tiles));
        EXPECT_EQ(reports.back(), std::pair(tiles, tiles));
    }
}

} // namespace
} // namespace orrery::testing
