#pragma once

#include "render/GlObject.h"

#include <string>

namespace orrery::render {

// The canvas the planets are drawn on: premultiplied colour in a texture (read when the
// picture is composed) and depth in a renderbuffer.
class Canvas {
public:
    // Makes the canvas width x height (kept when it already is); false and a message
    // when OpenGL cannot.
    bool ensureSize(int width, int height, std::string* error);

    GLuint framebuffer() const { return framebuffer_.id(); }
    GLuint colorTexture() const { return color_.id(); }

private:
    GlObject framebuffer_{GlObject::Kind::framebuffer};
    GlObject color_{GlObject::Kind::texture};
    GlObject depth_{GlObject::Kind::renderbuffer};
    int width_ = 0;
    int height_ = 0;
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
