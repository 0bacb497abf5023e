#include "RenderTestSupport.h"

#include "render/SurfaceTextures.h"

#include <epoxy/gl.h>

#include <limits>

namespace orrery::testing {
namespace {

using render::SurfaceTextures;

constexpr double kFullDetail = std::numeric_limits<double>::infinity();

class SurfaceLayers : public RenderTest {
protected:
    SurfaceTextures textures{[this](const std::string& name) -> std::optional<Image> {
        ++asked[name];
        const auto found = surfaces.find(name);
        return found == surfaces.end() ? std::nullopt : std::optional<Image>(found->second);
    }};
    std::map<std::string, int> asked;

    void addSurfaces(int count) {
        for (int i = 0; i < count; ++i)
            surfaces["S" + std::to_string(i)] = solidImage(8, 4, {10 * i + 5, 0, 0, 255});
    }

    // One pass that uses the named surfaces; their layers in order.
    std::vector<int> pass(const std::vector<std::string>& names, double radius = kFullDetail) {
        std::vector<int> layers;
        textures.beginScene();
        for (const std::string& name : names)
            layers.push_back(textures.layerOf(name));
        textures.endScene(radius);
        return layers;
    }

    // The top-left pixel of a layer, as stored, at a mipmap level.
    Rgba firstPixel(int layer, int level = 0) {
        const int width = std::max(1, textures.layerWidth() >> level);
        const int height = std::max(1, textures.layerWidth() / 2 >> level);
        const std::size_t layerBytes = static_cast<std::size_t>(width) * height * 4;
        std::vector<std::uint8_t> all(layerBytes * static_cast<std::size_t>(textures.layerCount()));
        glBindTexture(GL_TEXTURE_2D_ARRAY, textures.texture());
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glGetTexImage(GL_TEXTURE_2D_ARRAY, level, GL_RGBA, GL_UNSIGNED_BYTE, all.data());
        const std::uint8_t* p = all.data() + layerBytes * static_cast<std::size_t>(layer);
        return {p[0], p[1], p[2], p[3]};
    }
};

TEST_F(SurfaceLayers, LayersFollowTheSurfacesInUse) {
    addSurfaces(6);
    const auto first = pass({"S0", "S1", "S0", "missing"});
    EXPECT_EQ(first, (std::vector<int>{0, 1, 0, 2}));
    EXPECT_EQ(asked["S0"], 1);
    EXPECT_EQ(asked["missing"], 1);
    // The source had nothing: the planets drawn now find a transparent layer.
    EXPECT_EQ(firstPixel(2).a, 0);

    // S0 goes out of use; its layer is free for the next new surface.
    EXPECT_EQ(pass({"S1", "missing"}), (std::vector<int>{1, -1}));
    EXPECT_EQ(pass({"S1", "S2"}), (std::vector<int>{1, 0}));
    EXPECT_EQ(textures.layerCount(), 4);
    EXPECT_EQ(firstPixel(0).r, 25);
    EXPECT_EQ(firstPixel(1).r, 15);
    EXPECT_EQ(asked["missing"], 1);
    // The smallest level holds the surface too.
    EXPECT_EQ(firstPixel(1, 10).r, 15);
}

TEST_F(SurfaceLayers, GrowingAndShrinkingKeepEverySurface_WithoutFetchingItAgain) {
    addSurfaces(9);
    EXPECT_EQ(pass({"S0", "S1", "S2"}), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(textures.layerCount(), 4);
    // More surfaces than layers: the array grows once, to what this pass needs.
    std::vector<std::string> all;
    for (int i = 0; i < 9; ++i)
        all.push_back("S" + std::to_string(i));
    pass(all);
    EXPECT_EQ(textures.layerCount(), 12);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(firstPixel(i).r, 10 * i + 5) << i;
    // Once a quarter stands empty the array shrinks, the surfaces moving down in order; the
    // pass after that sees them in their new layers.
    pass({"S8", "S3"});
    EXPECT_EQ(textures.layerCount(), 12);
    EXPECT_EQ(pass({"S8", "S3"}), (std::vector<int>{1, 0}));
    EXPECT_EQ(textures.layerCount(), 4);
    EXPECT_EQ(firstPixel(0).r, 35);
    EXPECT_EQ(firstPixel(1).r, 85);
    for (const auto& [name, count] : asked)
        EXPECT_EQ(count, 1) << name;
    // With no surface in use nothing is kept.
    pass({});
    pass({});
    EXPECT_EQ(textures.layerCount(), 0);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

// One texel per pixel at the centre of the largest planet: a surface spans 2 pi radians.
TEST_F(SurfaceLayers, DetailFollowsTheLargestPlanet) {
    addSurfaces(2);
    pass({"S0", "S1"}, 10.0);
    EXPECT_EQ(textures.layerWidth(), 64);
    pass({"S0", "S1"}, 0.0); // nothing with a surface on screen: nothing changes
    pass({"S0", "S1"}, 11.0);
    EXPECT_EQ(textures.layerWidth(), 128);
    EXPECT_EQ(asked["S0"], 2); // fetched again for the finer detail
    pass({"S0", "S1"}, 8.0);   // a little less detail would do: kept
    EXPECT_EQ(textures.layerWidth(), 128);
    pass({"S0", "S1"}, 3.0);
    EXPECT_EQ(textures.layerWidth(), 32);
    pass({"S0", "S1"}, 1000.0);
    EXPECT_EQ(textures.layerWidth(), SurfaceTextures::kLayerWidth);
    EXPECT_EQ(asked["S1"], 4);
    EXPECT_EQ(firstPixel(1).r, 15);
}

} // namespace
} // namespace orrery::testing
