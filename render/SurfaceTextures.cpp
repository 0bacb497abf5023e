#include "render/SurfaceTextures.h"

#include "render/ImageResample.h"

#include <algorithm>

namespace orrery::render {
namespace {

constexpr int kFirstCapacity = 4;

int maxLayers() {
    GLint layers = 256;
    glGetIntegerv(GL_MAX_ARRAY_TEXTURE_LAYERS, &layers);
    return std::max(1, static_cast<int>(layers));
}

void setSampling() {
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_WRAP_S, GL_REPEAT); // around the equator
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
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
    // The layer first: making room asks the source for the other surfaces again, which
    // may invalidate an image it handed out before.
    Entry entry{takeFreeLayer(), true};
    if (entry.layer >= 0 && !upload(name, entry.layer)) {
        freeLayers_.push_back(entry.layer);
        entry.layer = -1;
    }
    entries_.emplace(name, entry);
    return entry.layer;
}

void SurfaceTextures::endScene() {
    for (auto it = entries_.begin(); it != entries_.end();) {
        if (it->second.used) {
            ++it;
            continue;
        }
        if (it->second.layer >= 0)
            freeLayers_.push_back(it->second.layer);
        it = entries_.erase(it);
    }
    if (mipmapsStale_) {
        glBindTexture(GL_TEXTURE_2D_ARRAY, texture_.id());
        glGenerateMipmap(GL_TEXTURE_2D_ARRAY);
        mipmapsStale_ = false;
    }
}

void SurfaceTextures::clear() {
    entries_.clear();
    freeLayers_.clear();
    texture_.reset();
    capacity_ = 0;
}

int SurfaceTextures::takeFreeLayer() {
    if (freeLayers_.empty())
        grow();
    if (freeLayers_.empty())
        return -1;
    // Lowest first, so that the layers in use stay packed at the start.
    const auto lowest = std::min_element(freeLayers_.begin(), freeLayers_.end());
    const int layer = *lowest;
    freeLayers_.erase(lowest);
    return layer;
}

void SurfaceTextures::grow() {
    const int limit = maxLayers();
    if (capacity_ >= limit)
        return;
    const int capacity = std::min(limit, capacity_ == 0 ? kFirstCapacity : capacity_ * 2);
    texture_.create();
    glBindTexture(GL_TEXTURE_2D_ARRAY, texture_.id());
    int width = kLayerWidth;
    int height = kLayerHeight;
    for (int level = 0; width > 0 || height > 0; ++level) {
        glTexImage3D(GL_TEXTURE_2D_ARRAY, level, GL_SRGB8_ALPHA8, std::max(width, 1),
                     std::max(height, 1), capacity, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        if (width <= 1 && height <= 1)
            break;
        width /= 2;
        height /= 2;
    }
    setSampling();
    // The new storage is empty: the surfaces in use go back into their old layers.
    for (auto& [name, entry] : entries_)
        if (entry.layer >= 0 && !upload(name, entry.layer))
            entry.layer = -1;
    for (int layer = capacity_; layer < capacity; ++layer)
        freeLayers_.push_back(layer);
    capacity_ = capacity;
}

bool SurfaceTextures::upload(const std::string& name, int layer) {
    const Image* image = source_ ? source_(name) : nullptr;
    if (image == nullptr || image->isNull())
        return false;
    const bool fits = image->width == kLayerWidth && image->height == kLayerHeight;
    const Image scaled = fits ? Image() : resampled(*image, kLayerWidth, kLayerHeight);
    const Image& pixels = fits ? *image : scaled;
    glBindTexture(GL_TEXTURE_2D_ARRAY, texture_.id());
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexSubImage3D(GL_TEXTURE_2D_ARRAY, 0, 0, 0, layer, kLayerWidth, kLayerHeight, 1, GL_RGBA,
                    GL_UNSIGNED_BYTE, pixels.pixels.data());
    mipmapsStale_ = true;
    return true;
}

} // namespace orrery::render
