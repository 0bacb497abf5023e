#include "render/SurfaceTextures.h"

#include "render/ImageResample.h"

#include <algorithm>

namespace orrery::render {
namespace {

constexpr int kLayerGranularity = 4;

int maxLayers() {
    GLint layers = 256;
    glGetIntegerv(GL_MAX_ARRAY_TEXTURE_LAYERS, &layers);
    return std::max(1, static_cast<int>(layers));
}

void allocateStorage(int layers) {
    int width = SurfaceTextures::kLayerWidth;
    int height = SurfaceTextures::kLayerHeight;
    for (int level = 0;; ++level) {
        glTexImage3D(GL_TEXTURE_2D_ARRAY, level, GL_SRGB8_ALPHA8, width, height, layers, 0, GL_RGBA,
                     GL_UNSIGNED_BYTE, nullptr);
        if (width == 1 && height == 1)
            break;
        width = std::max(1, width / 2);
        height = std::max(1, height / 2);
    }
    // One mipmap level per sample, not a blend of two: half the texel reads, which a software
    // renderer feels, for a difference the eye does not see.
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_NEAREST);
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_WRAP_S, GL_REPEAT); // around the equator
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void setLayer(int layer, const std::uint8_t* pixels) {
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexSubImage3D(GL_TEXTURE_2D_ARRAY, 0, 0, 0, layer, SurfaceTextures::kLayerWidth,
                    SurfaceTextures::kLayerHeight, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixels);
}

} // namespace

void SurfaceTextures::beginScene() {
    for (auto& [name, entry] : entries_)
        entry.used = false;
}

int SurfaceTextures::layerOf(const std::string& name) {
    if (const auto found = entries_.find(name); found != entries_.end()) {
        found->second.used = true;
        return found->second.layer;
    }
    int layer = -1;
    if (!free_.empty()) {
        // Lowest first, so that the layers in use stay packed at the start.
        const auto lowest = std::min_element(free_.begin(), free_.end());
        layer = *lowest;
        free_.erase(lowest);
    } else if (handedOut_ < maxLayers()) {
        layer = handedOut_++;
    }
    entries_.emplace(name, Entry{layer, true, false});
    return layer;
}

void SurfaceTextures::endScene() {
    for (auto it = entries_.begin(); it != entries_.end();) {
        if (it->second.used) {
            ++it;
            continue;
        }
        if (it->second.layer >= 0)
            free_.push_back(it->second.layer);
        it = entries_.erase(it);
    }
    if (handedOut_ > capacity_)
        resize((handedOut_ + kLayerGranularity - 1) / kLayerGranularity * kLayerGranularity);
    bool changed = false;
    glBindTexture(GL_TEXTURE_2D_ARRAY, texture_.id());
    for (auto& [name, entry] : entries_) {
        if (entry.loaded || entry.layer < 0)
            continue;
        entry.loaded = true;
        changed = true;
        if (!upload(name, entry.layer)) {
            // Nothing to show: the layer is cleared for the planets already pointing at it
            // and set free; from the next pass on the surface has no layer.
            blank(entry.layer);
            free_.push_back(entry.layer);
            entry.layer = -1;
        }
    }
    if (changed)
        glGenerateMipmap(GL_TEXTURE_2D_ARRAY);
}

void SurfaceTextures::resize(int capacity) {
    capacity = std::min(capacity, maxLayers());
    texture_.create();
    glBindTexture(GL_TEXTURE_2D_ARRAY, texture_.id());
    allocateStorage(capacity);
    // The new storage is empty: the surfaces loaded before go back into their layers.
    for (auto& [name, entry] : entries_)
        if (entry.loaded && entry.layer >= 0 && !upload(name, entry.layer))
            blank(entry.layer);
    for (int layer = handedOut_; layer < capacity; ++layer)
        free_.push_back(layer);
    handedOut_ = capacity;
    capacity_ = capacity;
}

bool SurfaceTextures::upload(const std::string& name, int layer) {
    const Image* image = source_ ? source_(name) : nullptr;
    if (image == nullptr || image->isNull())
        return false;
    if (image->width == kLayerWidth && image->height == kLayerHeight) {
        setLayer(layer, image->pixels.data());
    } else {
        const Image scaled = resampled(*image, kLayerWidth, kLayerHeight);
        setLayer(layer, scaled.pixels.data());
    }
    return true;
}

void SurfaceTextures::blank(int layer) {
    const std::vector<std::uint8_t> transparent(
        static_cast<std::size_t>(kLayerWidth) * kLayerHeight * 4, 0);
    setLayer(layer, transparent.data());
}

} // namespace orrery::render
