#pragma once

#include "render/GlObject.h"

#include <cstddef>
#include <vector>

namespace orrery::render {

// A buffer of per-planet data that grows as needed, with room to spare so that adding
// planets one by one does not reallocate each time.
class GrowingBuffer {
public:
    void create() { buffer_.create(); }
    GLuint id() const { return buffer_.id(); }

    template <typename Item> void upload(const std::vector<Item>& items) {
        const std::size_t bytes = items.size() * sizeof(Item);
        glBindBuffer(GL_ARRAY_BUFFER, buffer_.id());
        if (bytes > capacity_) {
            capacity_ = bytes + bytes / 2;
            glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(capacity_), nullptr,
                         GL_DYNAMIC_DRAW);
        }
        if (bytes > 0)
            glBufferSubData(GL_ARRAY_BUFFER, 0, static_cast<GLsizeiptr>(bytes), items.data());
    }

private:
    GlObject buffer_{GlObject::Kind::buffer};
    std::size_t capacity_ = 0;
};

} // namespace orrery::render
