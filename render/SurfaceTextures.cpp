#include "render/SurfaceTextures.h"

#include "render/ImageResample.h"
#include "render/SurfaceMipmaps.h"

#include <algorithm>

namespace orrery::render {
namespace {

constexpr int kLayerGranularity = 4;
constexpr int kFullWidth = SurfaceTextures::kLayerWidth;
constexpr int kFullHeight = SurfaceTextures::kLayerHeight;
constexpr int kLeastWidth = 16;

int roundedUp(int layers) {
    return (layers + kLayerGranularity - 1) / kLayerGranularity * kLayerGranularity;
}

// Layers wide enough for one texel per pixel at the centre of a planet of that radius: a
// surface spans 2 pi radians of longitude across the layer's width.
int detailWidth(double radiusPixels) {
    int width = kLeastWidth;
    while (width < kFullWidth && width < 6.283185307179586 * radiusPixels)
        width *= 2;
    return width;
}

int maxLayers() {
    GLint layers = 256;
    glGetIntegerv(GL_MAX_ARRAY_TEXTURE_LAYERS, &layers);
    return std::max(1, static_cast<int>(layers));
}

// Calls `each(level, width, height)` for every mipmap level of layers `baseWidth` wide, the
// largest first.
template <typename Each> void forEachLevel(int baseWidth, Each each) {
    for (int level = 0, width = baseWidth, height = baseWidth / 2;; ++level) {
        each(level, width, height);
        if (width == 1 && height == 1)
            return;
        width = std::max(1, width / 2);
        height = std::max(1, height / 2);
    }
}

void allocateStorage(int layers, int baseWidth) {
    // All levels in one allocation: levels specified one by one make some drivers, Mesa
    // among them, keep each level apart first and copy them together later.
    if (epoxy_gl_version() >= 42 || epoxy_has_gl_extension("GL_ARB_texture_storage")) {
        int levels = 0;
        forEachLevel(baseWidth, [&](int, int, int) { ++levels; });
        glTexStorage3D(GL_TEXTURE_2D_ARRAY, levels, GL_SRGB8_ALPHA8, baseWidth, baseWidth / 2,
                       layers);
    } else {
        forEachLevel(baseWidth, [layers](int level, int width, int height) {
            glTexImage3D(GL_TEXTURE_2D_ARRAY, level, GL_SRGB8_ALPHA8, width, height, layers, 0,
                         GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        });
    }
    // One mipmap level per sample, not a blend of two: half the texel reads, which a software
    // renderer feels, for a difference the eye does not see.
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_NEAREST);
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_WRAP_S, GL_REPEAT); // around the equator
    glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void setLevel(int level, int layer, int width, int height, const std::uint8_t* pixels) {
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexSubImage3D(GL_TEXTURE_2D_ARRAY, level, 0, 0, layer, width, height, 1, GL_RGBA,
                    GL_UNSIGNED_BYTE, pixels);
}

// Copies layers, every level, from `source` into the array bound now, through a
// framebuffer: the one way to copy between textures that OpenGL 3.3 has.
void copyLayers(GLuint source, int baseWidth, const std::vector<std::pair<int, int>>& moves) {
    GLint previous = 0;
    glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &previous);
    GlObject reader(GlObject::Kind::framebuffer);
    reader.create();
    glBindFramebuffer(GL_READ_FRAMEBUFFER, reader.id());
    forEachLevel(baseWidth, [&](int level, int width, int height) {
        for (const auto& [from, to] : moves) {
            glFramebufferTextureLayer(GL_READ_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, source, level,
                                      from);
            glCopyTexSubImage3D(GL_TEXTURE_2D_ARRAY, level, 0, 0, to, 0, 0, width, height);
        }
    });
    glBindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<GLuint>(previous));
}

} // namespace

void SurfaceTextures::beginScene() {
    std::vector<std::pair<int, Entry*>> held;
    for (auto& [name, entry] : entries_) {
        entry.used = false;
        if (entry.layer >= 0)
            held.emplace_back(entry.layer, &entry);
    }
    // Shrinking happens here, before this pass hands out layers, so that no planet is left
    // pointing at a layer that moved.
    const int needed = roundedUp(static_cast<int>(held.size()));
    if (capacity_ == 0 || needed * 4 > capacity_ * 3)
        return;
    std::sort(held.begin(), held.end());
    std::vector<std::pair<int, int>> moves;
    for (std::size_t i = 0; i < held.size(); ++i) {
        moves.emplace_back(held[i].first, static_cast<int>(i));
        held[i].second->layer = static_cast<int>(i);
    }
    reallocate(needed, moves);
    free_.clear();
    for (int layer = static_cast<int>(held.size()); layer < needed; ++layer)
        free_.push_back(layer);
    handedOut_ = needed;
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

void SurfaceTextures::endScene(double largestRadiusPixels) {
    for (auto it = entries_.begin(); it != entries_.end();) {
        if (it->second.used) {
            ++it;
            continue;
        }
        if (it->second.layer >= 0)
            free_.push_back(it->second.layer);
        it = entries_.erase(it);
    }
    const int width = widthFor(largestRadiusPixels);
    const bool newDetail = width != width_;
    if (newDetail || handedOut_ > capacity_) {
        // Growing keeps every surface in its layer; a new level of detail fetches them again.
        std::vector<std::pair<int, int>> moves;
        for (auto& [name, entry] : entries_) {
            if (newDetail)
                entry.loaded = false;
            else if (entry.loaded && entry.layer >= 0)
                moves.emplace_back(entry.layer, entry.layer);
        }
        if (newDetail)
            width_ = width;
        reallocate(std::max(capacity_, std::min(roundedUp(handedOut_), maxLayers())), moves);
        for (int layer = handedOut_; layer < capacity_; ++layer)
            free_.push_back(layer);
        handedOut_ = std::max(handedOut_, capacity_);
    }
    glBindTexture(GL_TEXTURE_2D_ARRAY, texture_.id());
    for (auto& [name, entry] : entries_) {
        if (entry.loaded || entry.layer < 0)
            continue;
        entry.loaded = true;
        if (!upload(name, entry.layer)) {
            // Nothing to show: the layer is cleared for the planets already pointing at it
            // and set free; from the next pass on the surface has no layer.
            blank(entry.layer);
            free_.push_back(entry.layer);
            entry.layer = -1;
        }
    }
}

int SurfaceTextures::widthFor(double largestRadiusPixels) const {
    // With no surface on screen there is nothing to learn about the detail needed.
    const int width =
        largestRadiusPixels > 0.0 || width_ == 0 ? detailWidth(largestRadiusPixels) : width_;
    // Less detail only once a quarter would do, so that a planet shrinking a little does not
    // fetch every surface again.
    return width > width_ || width * 4 <= width_ ? width : width_;
}

std::optional<int> SurfaceTextures::heldLayer(const std::string& name) const {
    const auto found = entries_.find(name);
    if (found == entries_.end() || !found->second.loaded)
        return std::nullopt;
    return found->second.layer;
}

bool SurfaceTextures::keepsDetailFor(double largestRadiusPixels) const {
    return widthFor(largestRadiusPixels) == width_;
}

void SurfaceTextures::reallocate(int capacity, const std::vector<std::pair<int, int>>& moves) {
    GlObject fresh(GlObject::Kind::texture);
    if (capacity > 0) {
        fresh.create();
        glBindTexture(GL_TEXTURE_2D_ARRAY, fresh.id());
        allocateStorage(capacity, width_);
        if (texture_ && !moves.empty())
            copyLayers(texture_.id(), width_, moves);
    }
    texture_ = std::move(fresh);
    capacity_ = capacity;
}

bool SurfaceTextures::upload(const std::string& name, int layer) {
    std::optional<Image> image = source_ ? source_(name) : std::nullopt;
    if (!image || image->isNull())
        return false;
    Image level = image->width == kFullWidth && image->height == kFullHeight
                      ? std::move(*image)
                      : resampled(*image, kFullWidth, kFullHeight);
    image.reset();
    while (level.width > width_)
        level = halvedSurface(level);
    forEachLevel(width_, [&](int index, int width, int height) {
        if (index > 0)
            level = halvedSurface(level);
        setLevel(index, layer, width, height, level.pixels.data());
    });
    return true;
}

void SurfaceTextures::blank(int layer) {
    const std::vector<std::uint8_t> transparent(static_cast<std::size_t>(width_) * width_ / 2 * 4,
                                                0);
    forEachLevel(width_, [&](int level, int width, int height) {
        setLevel(level, layer, width, height, transparent.data());
    });
}

} // namespace orrery::render
