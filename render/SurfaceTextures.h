#pragma once

#include "render/GlObject.h"
#include "render/SurfaceSource.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace orrery::render {

// The surface images that the planets of the scene use, one layer each of a texture
// array with mipmaps. A surface gets a layer when a planet first uses it and gives it up
// once no planet uses it, so memory follows the number of different surfaces in use, not
// the number or the size of the planets. New surfaces are fetched and the array is
// resized once per pass over the scene, to exactly the layers needed (rounded up to 4).
class SurfaceTextures {
public:
    static constexpr int kLayerWidth = 1024;
    static constexpr int kLayerHeight = 512;

    explicit SurfaceTextures(SurfaceSource source) : source_(std::move(source)) {}

    // Bracket one pass over the scene's planets.
    void beginScene();
    // The layer for the named surface, or -1 when the source had no usable image for it.
    // A surface seen for the first time is loaded by endScene; should the source have
    // nothing, its layer stays transparent, which shows as no emission.
    int layerOf(const std::string& name);
    void endScene();

    GLuint texture() const { return texture_.id(); }
    int layerCount() const { return capacity_; }

private:
    struct Entry {
        int layer = -1;
        bool used = false;
        bool loaded = false;
    };

    void resize(int capacity);
    bool upload(const std::string& name, int layer);
    void blank(int layer);

    SurfaceSource source_;
    GlObject texture_{GlObject::Kind::texture};
    int capacity_ = 0;      // layers of the texture array
    int handedOut_ = 0;     // layer numbers given out so far, free or not; may pass capacity_
    std::vector<int> free_; // layer numbers below handedOut_ that no surface holds
    std::unordered_map<std::string, Entry> entries_;
};

} // namespace orrery::render
