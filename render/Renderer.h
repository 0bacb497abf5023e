#pragma once

#include "core/scene/CameraProjection.h"
#include "core/scene/Scene.h"
#include "core/scene/SceneView.h"
#include "core/styles/Image.h"
#include "render/SurfaceSource.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

// No OpenGL header here: the window includes this next to its toolkit's own GL headers.
namespace orrery {

namespace render {
class RendererState;
}

// The largest side of a picture renderImage draws, in pixels: an A1 poster at 300 dots an
// inch has 9933; beyond, the memory a picture takes grows past what a desktop has to spare.
inline constexpr int kLargestPictureSide = 16384;

// How renderImage draws a picture in tiles: at most tileSide pixels a side (0: the renderer's
// own choice, which a smaller OpenGL limit lowers), telling `progress` after each tile how
// many of how many are done.
struct PictureTiling {
    int tileSide = 0;
    std::function<void(int tilesDone, int tiles)> progress;
};

// Draws a planet scene with OpenGL 3.3 core (or later) into whatever context is current:
// exact spheres, one omnidirectional light, gradient or colour diffuse, surface emission,
// edges smoothed by their exact pixel coverage, transparent where no planet is. Every call
// needs the context the renderer was made in to be current, and so does destroying it.
class Renderer {
public:
    // None, with the reason in `error`, when the current context cannot do the work.
    static std::unique_ptr<Renderer> create(SurfaceSource surfaces, std::string* error);
    ~Renderer();
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    // Draws into a framebuffer (0 is the context's default one), covering width x height
    // pixels from its bottom-left corner, with straight alpha. The camera sees what the
    // view's camera sees, at the aspect ratio of the pixels.
    bool render(const SceneView& view, unsigned framebuffer, int width, int height,
                std::string* error = nullptr);
    bool render(const Scene& scene, const CameraProjection& camera, unsigned framebuffer, int width,
                int height, std::string* error = nullptr);

    // The picture at width x height pixels: top row first, straight alpha. A large picture
    // is drawn in tiles, so that it needs little memory beyond its own, and at any size
    // OpenGL cannot draw at once; the tiles join without a seam, into the very picture one
    // pass would draw.
    std::optional<Image> renderImage(const SceneView& view, int width, int height,
                                     std::string* error = nullptr,
                                     const PictureTiling& tiling = {});
    std::optional<Image> renderImage(const Scene& scene, const CameraProjection& camera, int width,
                                     int height, std::string* error = nullptr,
                                     const PictureTiling& tiling = {});

    // The picture that render() lays the planets over, in the same pass that finishes the
    // picture: the target's size, top row first, straight alpha; kept until the next call.
    // An empty image for none: render() then replaces what the target holds. Pictures
    // (renderImage) never have a backdrop.
    void setBackdrop(const Image& backdrop);

    // Spreads a large redraw of render() over several calls, a strip of the picture each of
    // about `planetsPerFrame` planets, so that a window stays responsive while 100,000
    // planets are drawn afresh; 0 (the start) draws every frame whole. The strips not yet
    // drawn show nothing. A new view of such a scene (another system, another camera) is
    // taken in over the first calls too, which show the last frame meanwhile. Pictures
    // (renderImage) are always drawn whole.
    void spreadRedraws(std::size_t planetsPerFrame);
    // Whether render() left strips for the calls to come: call it again until false.
    bool drawsMore() const;

    // The OpenGL renderer and what the renderer uses of it, for logs and benchmarks.
    std::string description() const;

private:
    explicit Renderer(std::unique_ptr<render::RendererState> state);
    std::unique_ptr<render::RendererState> state_;
};

} // namespace orrery
