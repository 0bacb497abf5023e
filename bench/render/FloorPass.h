#pragma once

#include "core/scene/SceneView.h"
#include "render/GlObject.h"
#include "render/PlanetDraws.h"
#include "render/SurfaceSource.h"
#include "render/SurfaceTextures.h"

#include <memory>
#include <optional>
#include <string>

namespace orrery::bench {

// The floor every frame time is measured against: one bare pass of the renderer's planet
// shader over every pixel of a frame, as one quad, with no clearing, depth test, blending or
// finishing pass around it. It shades the first planet of `view`, one that fills the frame,
// with the shader the renderer gives such a planet: plain, or with its gradient and surface.
class FloorPass {
public:
    // None, with the reason in `error`, when the shader cannot be built.
    static std::unique_ptr<FloorPass> create(const SceneView& view, int width, int height,
                                             const SurfaceSource& surfaces, std::string* error);

    // Draws the pass into `framebuffer` and waits for it; milliseconds taken.
    double drawMs(GLuint framebuffer);

private:
    explicit FloorPass(const SurfaceSource& surfaces) : surfaces_(surfaces) {}

    render::GlObject program_{render::GlObject::Kind::program};
    render::GlObject vertices_{render::GlObject::Kind::vertexArray};
    render::GlObject instance_{render::GlObject::Kind::buffer};
    render::GlObject gradientRamps_{render::GlObject::Kind::texture};
    render::SurfaceTextures surfaces_;
    render::DrawnPixels drawn_;
    int width_ = 0;
    int height_ = 0;
};

} // namespace orrery::bench
