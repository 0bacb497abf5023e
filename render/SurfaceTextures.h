#pragma once

#include "render/GlObject.h"
#include "render/SurfaceSource.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace orrery::render {

// The surface images that the planets of the scene use, one layer each of a texture
// array with mipmaps. A surface is uploaded when a planet first uses it and its layer is
// freed for another surface once no planet uses it, so memory follows the number of
// different surfaces in use, not the number or size of the planets.
class SurfaceTextures {
public:
    static constexpr int kLayerWidth = 1024;
    static constexpr int kLayerHeight = 512;

    explicit SurfaceTextures(SurfaceSource source) : source_(std::move(source)) {}

    // Bracket one pass over the scene's planets.
    void beginScene();
    // The layer holding the named surface, -1 when the source has no usable image.
    int layerOf(const std::string& name);
    void endScene();

    // Forget every surface, so that they are asked from the source again.
    void clear();

    GLuint texture() const { return texture_.id(); }
    int layerCount() const { return capacity_; }

private:
    struct Entry {
        int layer = -1;
        bool used = false;
    };

    int takeFreeLayer();
    void grow();
    bool upload(const std::string& name, int layer);

    SurfaceSource source_;
    GlObject texture_{GlObject::Kind::texture};
    int capacity_ = 0;
    std::unordered_map<std::string, Entry> entries_;
    std::vector<int> freeLayers_;
    bool mipmapsStale_ = false;
};

} // namespace orrery::render
