#pragma once

#include "render/GlObject.h"
#include "render/SurfaceSource.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orrery::render {

// The surface images that the planets of the scene use, one layer each of a texture array
// with mipmaps. A surface gets a layer when a planet first uses it and gives it up once no
// planet uses it. The array holds the layers in use, rounded up to 4: it grows once per
// pass over the scene, to what the pass needs, and shrinks once a quarter of it stands
// empty, so memory follows the number of different surfaces in use, not the number of
// planets. The pixels live only in the array: each image is fetched once, uploaded with its
// mipmaps and let go; resizing copies the layers on the GPU.
//
// Nor does memory follow detail that no pixel shows: the layers are only as wide as the
// largest textured planet on screen needs (one texel per pixel at its centre, up to the
// full kLayerWidth). Finer levels would never be sampled. When a larger planet needs more,
// the surfaces in use are fetched again; they drop to less detail once a quarter would do.
class SurfaceTextures {
public:
    static constexpr int kLayerWidth = 1024;
    static constexpr int kLayerHeight = 512;

    explicit SurfaceTextures(SurfaceSource source) : source_(std::move(source)) {}

    // Bracket one pass over the scene's planets. endScene is told the radius, in pixels, of
    // the largest planet drawn with a surface (0 when there is none).
    void beginScene();
    // The layer for the named surface, or -1 when the source had no usable image for it.
    // A surface seen for the first time is loaded by endScene; should the source have
    // nothing, its layer stays transparent, which shows as no emission.
    int layerOf(const std::string& name);
    void endScene(double largestRadiusPixels);

    // Between passes: the layer of a surface that the last pass loaded (-1 when the source
    // had no image for it), none for a surface that needs a pass; and whether a pass with
    // this largest radius would keep the present level of detail.
    std::optional<int> heldLayer(const std::string& name) const;
    bool keepsDetailFor(double largestRadiusPixels) const;

    GLuint texture() const { return texture_.id(); }
    int layerCount() const { return capacity_; }
    int layerWidth() const { return width_; } // the height is half of it

private:
    struct Entry {
        int layer = -1;
        bool used = false;
        bool loaded = false;
    };

    // Replaces the array by one of `capacity` layers, copying each (old, new) layer pair.
    void reallocate(int capacity, const std::vector<std::pair<int, int>>& moves);
    bool upload(const std::string& name, int layer);
    void blank(int layer);
    int widthFor(double largestRadiusPixels) const;

    SurfaceSource source_;
    GlObject texture_{GlObject::Kind::texture};
    int width_ = 0;         // of the layers; 0 until the first pass chooses
    int capacity_ = 0;      // layers of the texture array
    int handedOut_ = 0;     // layer numbers given out so far, free or not; may pass capacity_
    std::vector<int> free_; // layer numbers below handedOut_ that no surface holds
    std::unordered_map<std::string, Entry> entries_;
};

} // namespace orrery::render
