#include "render/Framebuffers.h"

#include <algorithm>

namespace orrery::render {
namespace {

int queryInt(GLenum name) {
    GLint value = 0;
    glGetIntegerv(name, &value);
    return value;
}

// Checks the framebuffer just built; drains errors such as running out of memory.
bool framebufferComplete(int width, int height, std::string* error) {
    const GLenum status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
    GLenum problem = glGetError();
    bool outOfMemory = false;
    for (; problem != GL_NO_ERROR; problem = glGetError())
        outOfMemory = outOfMemory || problem == GL_OUT_OF_MEMORY;
    if (status == GL_FRAMEBUFFER_COMPLETE && !outOfMemory)
        return true;
    if (error != nullptr)
        *error = (outOfMemory ? "not enough memory for " : "OpenGL cannot draw ") +
                 pictureText(width, height);
    return false;
}

} // namespace

std::string pictureText(int width, int height) {
    return "a picture of " + std::to_string(width) + " x " + std::to_string(height) + " pixels";
}

bool pictureNotEmpty(int width, int height, std::string* error) {
    if (width > 0 && height > 0)
        return true;
    if (error != nullptr)
        *error = pictureText(width, height) + " is empty";
    return false;
}

int largestCanvasSide() {
    GLint viewport[2] = {0, 0};
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
    return std::min({queryInt(GL_MAX_TEXTURE_SIZE), queryInt(GL_MAX_RENDERBUFFER_SIZE),
                     static_cast<int>(viewport[0]), static_cast<int>(viewport[1])});
}

bool pictureSizeSupported(int width, int height, std::string* error) {
    if (!pictureNotEmpty(width, height, error))
        return false;
    const int limit = largestCanvasSide();
    if (width <= limit && height <= limit)
        return true;
    if (error != nullptr)
        *error = pictureText(width, height) + " is larger than this OpenGL allows (" +
                 std::to_string(limit) + " pixels a side)";
    return false;
}

namespace {

GlObject makeTexture(int width, int height) {
    GlObject texture(GlObject::Kind::texture);
    texture.create();
    glBindTexture(GL_TEXTURE_2D, texture.id());
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    return texture;
}

void attach(const GlObject& framebuffer, const GlObject& colour, const GlObject& depthStencil) {
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer.id());
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, colour.id(), 0);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_STENCIL_ATTACHMENT, GL_RENDERBUFFER,
                              depthStencil.id());
}

} // namespace

bool Canvas::ensureSize(int width, int height, std::string* error) {
    if (planetsFramebuffer_ && width == width_ && height == height_)
        return true;
    if (!pictureSizeSupported(width, height, error))
        return false;
    width_ = height_ = 0;
    planets_ = makeTexture(width, height);
    picture_ = makeTexture(width, height);
    depthStencil_.create();
    glBindRenderbuffer(GL_RENDERBUFFER, depthStencil_.id());
    glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH24_STENCIL8, width, height);
    planetsFramebuffer_.create();
    attach(planetsFramebuffer_, planets_, depthStencil_);
    bool complete = framebufferComplete(width, height, error);
    pictureFramebuffer_.create();
    attach(pictureFramebuffer_, picture_, depthStencil_);
    complete = complete && framebufferComplete(width, height, error);
    if (!complete) {
        for (GlObject* object :
             {&planetsFramebuffer_, &pictureFramebuffer_, &planets_, &picture_, &depthStencil_})
            object->reset();
        return false;
    }
    width_ = width;
    height_ = height;
    return true;
}

} // namespace orrery::render
