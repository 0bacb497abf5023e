#include "RenderTestSupport.h"

#include "render/SurfaceTextures.h"

#include <epoxy/gl.h>

namespace orrery::testing {
namespace {

using render::SurfaceTextures;

class SurfaceLayers : public RenderTest {
protected:
    SurfaceTextures textures{[this](const std::string& name) -> const Image* {
        ++asked[name];
        const auto found = surfaces.find(name);
        return found == surfaces.end() ? nullptr : &found->second;
    }};
    std::map<std::string, int> asked;

    // The top-left pixel of a layer, as stored.
    Rgba firstPixel(int layer) {
        const std::size_t layerBytes = static_cast<std::size_t>(SurfaceTextures::kLayerWidth) *
                                       SurfaceTextures::kLayerHeight * 4;
        std::vector<std::uint8_t> all(layerBytes * static_cast<std::size_t>(textures.layerCount()));
        glBindTexture(GL_TEXTURE_2D_ARRAY, textures.texture());
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glGetTexImage(GL_TEXTURE_2D_ARRAY, 0, GL_RGBA, GL_UNSIGNED_BYTE, all.data());
        const std::uint8_t* p = all.data() + layerBytes * static_cast<std::size_t>(layer);
        return {p[0], p[1], p[2], p[3]};
    }
};

TEST_F(SurfaceLayers, LayersFollowTheSurfacesInUse) {
    for (int i = 0; i < 6; ++i)
        surfaces["S" + std::to_string(i)] = solidImage(8, 4, {10 * i, 0, 0, 255});
    textures.beginScene();
    EXPECT_EQ(textures.layerOf("S0"), 0);
    EXPECT_EQ(textures.layerOf("S1"), 1);
    EXPECT_EQ(textures.layerOf("S0"), 0);
    const int missingLayer = textures.layerOf("missing");
    textures.endScene();
    EXPECT_EQ(asked["S0"], 1);
    EXPECT_EQ(asked["missing"], 1);
    // The source had nothing: the planets drawn now find a transparent layer.
    EXPECT_EQ(firstPixel(missingLayer).a, 0);

    // S0 goes out of use; its layer is free for the next new surface.
    textures.beginScene();
    EXPECT_EQ(textures.layerOf("S1"), 1);
    EXPECT_EQ(textures.layerOf("missing"), -1);
    textures.endScene();
    textures.beginScene();
    EXPECT_EQ(textures.layerOf("S1"), 1);
    EXPECT_EQ(textures.layerOf("S2"), 0);
    textures.endScene();
    EXPECT_EQ(textures.layerCount(), 4);
    EXPECT_EQ(firstPixel(0).r, 20);
    EXPECT_EQ(firstPixel(1).r, 10);
    EXPECT_EQ(asked["missing"], 1);
}

TEST_F(SurfaceLayers, GrowingKeepsEverySurfaceInItsLayer) {
    for (int i = 0; i < 7; ++i)
        surfaces["S" + std::to_string(i)] = solidImage(8, 4, {10 * i + 5, 0, 0, 255});
    textures.beginScene();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(textures.layerOf("S" + std::to_string(i)), i);
    textures.endScene();
    EXPECT_EQ(textures.layerCount(), 4);
    // More surfaces than layers: the array grows once, to what this pass needs.
    textures.beginScene();
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(textures.layerOf("S" + std::to_string(i)), i);
    textures.endScene();
    EXPECT_EQ(textures.layerCount(), 8);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(firstPixel(i).r, 10 * i + 5) << i;
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

} // namespace
} // namespace orrery::testing
