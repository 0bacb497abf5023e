#pragma once

#include "render/GlObject.h"

#include <cstdint>
#include <vector>

namespace orrery::render {

// A colour framebuffer of a fixed size standing in for a window's, where the renderer draws
// without a window: the benchmarks, and the tests of what a window shows.
class StandInFramebuffer {
public:
    StandInFramebuffer(int width, int height);

    GLuint id() const { return framebuffer_.id(); }
    // What it holds, bottom row first.
    std::vector<std::uint8_t> pixels() const;

private:
    int width_ = 0;
    int height_ = 0;
    GlObject colour_{GlObject::Kind::renderbuffer};
    GlObject framebuffer_{GlObject::Kind::framebuffer};
};

} // namespace orrery::render
