#pragma once

#include <epoxy/gl.h>

#include <utility>

namespace orrery::render {

// One OpenGL object, deleted with its owner. The context that made it must be current
// when the owner goes.
class GlObject {
public:
    enum class Kind { buffer, texture, framebuffer, renderbuffer, vertexArray, program };

    explicit GlObject(Kind kind) : kind_(kind) {}
    GlObject(Kind kind, GLuint id) : kind_(kind), id_(id) {}
    GlObject(GlObject&& other) noexcept : kind_(other.kind_), id_(std::exchange(other.id_, 0)) {}
    GlObject& operator=(GlObject&& other) noexcept {
        if (this != &other) {
            reset();
            kind_ = other.kind_;
            id_ = std::exchange(other.id_, 0);
        }
        return *this;
    }
    GlObject(const GlObject&) = delete;
    GlObject& operator=(const GlObject&) = delete;
    ~GlObject() { reset(); }

    GLuint id() const { return id_; }
    explicit operator bool() const { return id_ != 0; }

    // Deletes the object (if any) and makes a fresh one of the same kind.
    void create();
    void reset();

private:
    Kind kind_;
    GLuint id_ = 0;
};

} // namespace orrery::render
