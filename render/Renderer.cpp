#include "render/Renderer.h"

#include "render/RendererState.h"

#include <utility>

namespace orrery {

Renderer::Renderer(std::unique_ptr<render::RendererState> state) : state_(std::move(state)) {}

void Renderer::setBackdrop(const Image& backdrop) {
    state_->setBackdrop(backdrop);
}

void Renderer::spreadRedraws(std::size_t planetsPerFrame) {
    state_->spreadRedraws(planetsPerFrame);
}

bool Renderer::drawsMore() const {
    return state_->drawsMore();
}
Renderer::~Renderer() = default;

std::unique_ptr<Renderer> Renderer::create(SurfaceSource surfaces, std::string* error) {
    auto state = std::make_unique<render::RendererState>(std::move(surfaces));
    if (!state->build(error))
        return nullptr;
    return std::unique_ptr<Renderer>(new Renderer(std::move(state)));
}

bool Renderer::render(const SceneView& view, unsigned framebuffer, int width, int height,
                      std::string* error) {
    return render(view.scene(), view.projection(width, height), framebuffer, width, height, error);
}

bool Renderer::render(const Scene& scene, const CameraProjection& camera, unsigned framebuffer,
                      int width, int height, std::string* error) {
    return state_->render(scene, camera, framebuffer, width, height, state_->hasBackdrop(), error);
}

std::optional<Image> Renderer::renderImage(const SceneView& view, int width, int height,
                                           std::string* error, const PictureTiling& tiling) {
    return renderImage(view.scene(), view.projection(width, height), width, height, error, tiling);
}

std::optional<Image> Renderer::renderImage(const Scene& scene, const CameraProjection& camera,
                                           int width, int height, std::string* error,
                                           const PictureTiling& tiling) {
    return state_->renderImage(scene, camera, width, height, error, tiling);
}

std::string Renderer::description() const {
    return state_->description();
}

} // namespace orrery
