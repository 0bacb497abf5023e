#pragma once

#include "core/scene/SceneView.h"
#include "render/GlObject.h"
#include "render/PlanetDraws.h"

#include <memory>
#include <string>

namespace orrery::bench {

// The floor every frame time is measured against: one bare pass of the renderer's plain
// planet shader over every pixel of a frame, as one quad, with no clearing, depth test,
// blending or finishing pass around it. It shades the planet of `view` that fills the
// frame, so that its pixels are those of a one-planet picture.
class FloorPass {
public:
    // None, with the compiler's reason in `error`, when the shader cannot be built.
    static std::unique_ptr<FloorPass> create(const SceneView& view, int width, int height,
                                             std::string* error);

    // Draws the pass into `framebuffer` and waits for it; milliseconds taken.
    double drawMs(GLuint framebuffer);

private:
    FloorPass() = default;
    render::GlObject program_{render::GlObject::Kind::program};
    render::GlObject vertices_{render::GlObject::Kind::vertexArray};
    render::GlObject instance_{render::GlObject::Kind::buffer};
    render::DrawnPixels drawn_;
    int width_ = 0;
    int height_ = 0;
};

} // namespace orrery::bench
