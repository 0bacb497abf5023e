#include "render/StandInFramebuffer.h"

#include <cstddef>

namespace orrery::render {

StandInFramebuffer::StandInFramebuffer(int width, int height) : width_(width), height_(height) {
    colour_.create();
    glBindRenderbuffer(GL_RENDERBUFFER, colour_.id());
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, width, height);
    framebuffer_.create();
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colour_.id());
}

std::vector<std::uint8_t> StandInFramebuffer::pixels() const {
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(width_) * height_ * 4);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer_.id());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width_, height_, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    return pixels;
}

} // namespace orrery::render
