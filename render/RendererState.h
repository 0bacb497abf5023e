#pragma once

#include "core/scene/CameraProjection.h"
#include "core/scene/Scene.h"
#include "core/styles/Image.h"
#include "render/CanvasStrips.h"
#include "render/CurrentPlanets.h"
#include "render/Framebuffers.h"
#include "render/PictureFinish.h"
#include "render/PlanetDrawer.h"
#include "render/PlanetUniforms.h"
#include "render/Renderer.h"
#include "render/ShownPlanets.h"
#include "render/SurfaceSource.h"
#include "render/SurfaceTextures.h"

#include <cstddef>
#include <optional>
#include <string>

namespace orrery::render {

// Which part of the canvas a frame drew again: nothing, a part, or all of it.
struct DrawnArea {
    bool any = false;
    std::optional<PixelRect> part; // none: all of it
    bool marked = false;           // its soft pixels are marked in the stencil
};

// Everything the renderer keeps between frames. Planet data is brought up to date only when
// the scene (or the eye) changed: patched from the scene's list of changed planets where it
// can be, else rebuilt. The canvas keeps the planets as last drawn and is drawn again only
// where the planets changed, or whole when the view changed; its finished picture is
// finished again where the planets were drawn, and whole when the backdrop changed.
class RendererState {
public:
    explicit RendererState(SurfaceSource source) : surfaces(std::move(source)) {}
    RendererState(const RendererState&) = delete;
    RendererState& operator=(const RendererState&) = delete;

    bool build(std::string* error);
    bool render(const Scene& scene, const CameraProjection& camera, GLuint target, int width,
                int height, bool overBackdrop, std::string* error);
    void spreadRedraws(std::size_t planetsPerFrame);
    bool drawsMore() const { return planets.takingIn() || !strips.empty(); }
    std::optional<Image> renderImage(const Scene& scene, const CameraProjection& camera, int width,
                                     int height, std::string* error, const PictureTiling& tiling);
    std::string description() const;
    void setBackdrop(const Image& backdrop);
    bool hasBackdrop() const { return finishing.hasBackdrop(); }

private:
    bool drawFrame(const Scene& scene, const CameraProjection& camera, int width, int height,
                   const PixelRect& tile, bool overBackdrop, bool spread, std::string* error);
    bool drewWithoutError(std::string* error);
    // Brings the planets up to date; false while a rebuild spread over frames goes on.
    bool refreshPlanets(const Scene& scene, const CameraProjection& camera, int width, int height,
                        bool spread);
    void upload(const ShownPlanets::Pass& pass);
    DrawnArea drawPlanets(const CameraProjection& camera, int width, int height,
                          const PixelRect& tile, bool spread);
    DrawnArea clearForStrips(const std::optional<PixelRect>& part, const PixelRect& tile);

    float pointSizeLimit = 1.0f;
    bool marksSoft = false; // the planet shaders leave soft pixels marked in the stencil
    PictureFinish finishing;
    PlanetDrawer drawer;
    SurfaceTextures surfaces;
    Canvas canvas;

    CurrentPlanets planets{surfaces};
    std::optional<PixelBox> changedArea;
    // The parts of the canvas left for the frames to come, cleared until they are drawn.
    CanvasStrips strips;
    // What the canvas shows was drawn with these; none when it shows nothing to keep.
    std::optional<PlanetUniforms> canvasUniforms;
    // Whether the canvas's picture is finished over the backdrop; none when it is not finished.
    std::optional<bool> finishedOverBackdrop;
    // Where the canvas may hold soft colours; none: nowhere. And whether its stencil marks
    // them.
    std::optional<PixelRect> canvasSoft;
    bool canvasMarked = false;
    // The planets and draws of a pass over the whole canvas, kept while the planets are,
    // and of a part of it drawn again.
    ShownPlanets::Pass wholePass;
    std::optional<PixelRect> wholePassTile; // the tile it is for; none when not kept
    bool bufferHoldsWholePass = false;
    ShownPlanets::Pass partPass;
};

} // namespace orrery::render
