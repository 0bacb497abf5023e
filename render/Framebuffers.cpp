#include "render/Framebuffers.h"

#include <algorithm>

namespace orrery::render {
namespace {

int queryInt(GLenum name) {
    GLint value = 0;
    glGetIntegerv(name, &value);
    return value;
}

std::string sizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
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
        *error = outOfMemory
                     ? "not enough memory for a picture of " + sizeText(width, height) + " pixels"
                     : "OpenGL cannot draw a picture of " + sizeText(width, height) + " pixels";
    return false;
}

} // namespace

bool pictureSizeSupported(int width, int height, std::string* error) {
    if (width <= 0 || height <= 0) {
        if (error != nullptr)
            *error = "a picture of " + sizeText(width, height) + " pixels is empty";
        return false;
    }
    GLint viewport[2] = {0, 0};
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
    const int limit = std::min({queryInt(GL_MAX_TEXTURE_SIZE), queryInt(GL_MAX_RENDERBUFFER_SIZE),
                                static_cast<int>(viewport[0]), static_cast<int>(viewport[1])});
    if (width <= limit && height <= limit)
        return true;
    if (error != nullptr)
        *error = "a picture of " + sizeText(width, height) +
                 " pixels is larger than this OpenGL allows (" + std::to_string(limit) +
                 " pixels a side)";
    return false;
}

namespace {

// Builds the framebuffer anew unless it already has the size: `attach` gives the freshly
// bound framebuffer its attachments. A failure leaves no framebuffer and the reason.
template <typename Attach>
bool rebuildFramebuffer(GlObject& framebuffer, int& currentWidth, int& currentHeight, int width,
                        int height, std::string* error, Attach attach) {
    if (framebuffer && width == currentWidth && height == currentHeight)
        return true;
    if (!pictureSizeSupported(width, height, error))
        return false;
    currentWidth = currentHeight = 0;
    framebuffer.create();
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer.id());
    attach();
    if (!framebufferComplete(width, height, error)) {
        framebuffer.reset();
        return false;
    }
    currentWidth = width;
    currentHeight = height;
    return true;
}

} // namespace

bool Canvas::ensureSize(int width, int height, std::string* error) {
    return rebuildFramebuffer(framebuffer_, width_, height_, width, height, error, [&] {
        color_.create();
        glBindTexture(GL_TEXTURE_2D, color_.id());
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                     nullptr);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        depth_.create();
        glBindRenderbuffer(GL_RENDERBUFFER, depth_.id());
        glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, color_.id(), 0);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER,
                                  depth_.id());
    });
}

bool PictureFramebuffer::ensureSize(int width, int height, std::string* error) {
    return rebuildFramebuffer(framebuffer_, width_, height_, width, height, error, [&] {
        color_.create();
        glBindRenderbuffer(GL_RENDERBUFFER, color_.id());
        glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, width, height);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER,
                                  color_.id());
    });
}

} // namespace orrery::render
