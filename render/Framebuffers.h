#pragma once

#include "render/GlObject.h"

#include <array>
#include <string>

namespace orrery::render {

// The multisampled canvas the planets are drawn on: colour in a multisample texture (read
// sample by sample when the picture is composed), depth in a renderbuffer.
class MultisampleCanvas {
public:
    static constexpr int kMaxSamples = 8;

    // Makes the canvas width x height (kept when it already is); false and a message
    // when OpenGL cannot.
    bool ensureSize(int width, int height, std::string* error);

    GLuint framebuffer() const { return framebuffer_.id(); }
    GLuint colorTexture() const { return color_.id(); }
    int samples() const { return samples_; }
    // Sample positions inside a pixel, x and y from 0 to 1 per sample.
    const std::array<float, 2 * kMaxSamples>& samplePositions() const { return positions_; }

private:
    GlObject framebuffer_{GlObject::Kind::framebuffer};
    GlObject color_{GlObject::Kind::texture};
    GlObject depth_{GlObject::Kind::renderbuffer};
    int width_ = 0;
    int height_ = 0;
    int samples_ = 0;
    std::array<float, 2 * kMaxSamples> positions_{};
};

// A plain RGBA framebuffer to read a finished picture back from.
class PictureFramebuffer {
public:
    bool ensureSize(int width, int height, std::string* error);
    GLuint framebuffer() const { return framebuffer_.id(); }

private:
    GlObject framebuffer_{GlObject::Kind::framebuffer};
    GlObject color_{GlObject::Kind::renderbuffer};
    int width_ = 0;
    int height_ = 0;
};

// Whether OpenGL can hold a picture of that size at all; a message naming the limit
// when it cannot.
bool pictureSizeSupported(int width, int height, std::string* error);

} // namespace orrery::render
