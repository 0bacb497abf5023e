#include "render/GlObject.h"

namespace orrery::render {

void GlObject::create() {
    reset();
    switch (kind_) {
    case Kind::buffer:
        glGenBuffers(1, &id_);
        break;
    case Kind::texture:
        glGenTextures(1, &id_);
        break;
    case Kind::framebuffer:
        glGenFramebuffers(1, &id_);
        break;
    case Kind::renderbuffer:
        glGenRenderbuffers(1, &id_);
        break;
    case Kind::vertexArray:
        glGenVertexArrays(1, &id_);
        break;
    case Kind::program:
        id_ = glCreateProgram();
        break;
    }
}

void GlObject::reset() {
    if (id_ == 0)
        return;
    switch (kind_) {
    case Kind::buffer:
        glDeleteBuffers(1, &id_);
        break;
    case Kind::texture:
        glDeleteTextures(1, &id_);
        break;
    case Kind::framebuffer:
        glDeleteFramebuffers(1, &id_);
        break;
    case Kind::renderbuffer:
        glDeleteRenderbuffers(1, &id_);
        break;
    case Kind::vertexArray:
        glDeleteVertexArrays(1, &id_);
        break;
    case Kind::program:
        glDeleteProgram(id_);
        break;
    }
    id_ = 0;
}

} // namespace orrery::render
