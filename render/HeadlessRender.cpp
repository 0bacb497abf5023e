#include "render/HeadlessRender.h"

#include "render/HeadlessContext.h"
#include "render/Renderer.h"

namespace orrery {

std::optional<Image> renderSceneHeadless(const SceneView& view, int pixelWidth, int pixelHeight,
                                         const SurfaceSource& surfaces, std::string* error) {
    const auto context = HeadlessContext::create(error);
    if (!context)
        return std::nullopt;
    // The renderer's GL objects go before the context does.
    const auto renderer = Renderer::create(surfaces, error);
    if (!renderer)
        return std::nullopt;
    return renderer->renderImage(view, pixelWidth, pixelHeight, error);
}

} // namespace orrery
