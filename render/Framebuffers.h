#pragma once

#include "render/GlObject.h"

#include <string>

namespace orrery::render {

// Where the planets are drawn and finished. Planets go onto the canvas: premultiplied colour
// in a texture, with depth and, in the stencil, what each pixel's last colour left (see
// PictureFinish). The finished picture, straight alpha, lies in a texture of its own beside
// it, over the same depth and stencil, and is copied from there to wherever it is shown or
// read back.
class Canvas {
public:
    // Makes the canvas width x height (kept when it already is); false and a message
    // when OpenGL cannot.
    bool ensureSize(int width, int height, std::string* error);

    GLuint planetsFramebuffer() const { return planetsFramebuffer_.id(); }
    GLuint planetsTexture() const { return planets_.id(); }
    GLuint pictureFramebuffer() const { return pictureFramebuffer_.id(); }

private:
    GlObject planetsFramebuffer_{GlObject::Kind::framebuffer};
    GlObject pictureFramebuffer_{GlObject::Kind::framebuffer};
    GlObject planets_{GlObject::Kind::texture};
    GlObject picture_{GlObject::Kind::texture};
    GlObject depthStencil_{GlObject::Kind::renderbuffer};
    int width_ = 0;
    int height_ = 0;
};

// "a picture of W x H pixels", for messages.
std::string pictureText(int width, int height);

// Whether a picture of that size has any pixel; a message saying it is empty when not.
bool pictureNotEmpty(int width, int height, std::string* error);

// The largest side of a canvas this OpenGL can draw.
int largestCanvasSide();

// Whether OpenGL can hold a picture of that size at all; a message naming the limit
// when it cannot.
bool pictureSizeSupported(int width, int height, std::string* error);

} // namespace orrery::render
