#include "render/PlanetUniforms.h"

#include "render/ColorSpace.h"

#include <algorithm>
#include <cmath>

namespace orrery::render {
namespace {

std::array<float, 16> toFloats(const std::array<double, 16>& matrix) {
    std::array<float, 16> floats{};
    std::transform(matrix.begin(), matrix.end(), floats.begin(),
                   [](double value) { return static_cast<float>(value); });
    return floats;
}

} // namespace

PlanetUniforms planetUniforms(const CameraProjection& camera,
                              const std::optional<SceneLight>& light, int width, int height,
                              const PixelRect& tile, int surfaceWidth) {
    PlanetUniforms uniforms;
    uniforms.projection = toFloats(camera.matrix());
    uniforms.pixelAngle = static_cast<float>(2.0 * camera.ndcToRayY() / height);
    uniforms.viewport = {static_cast<float>(width), static_cast<float>(height)};
    uniforms.tile = {static_cast<float>(tile.x), static_cast<float>(tile.y),
                     static_cast<float>(tile.width), static_cast<float>(tile.height)};
    uniforms.ndcToRay = {static_cast<float>(camera.ndcToRayX()),
                         static_cast<float>(camera.ndcToRayY())};
    const Vec3 lightOffset = light ? light->position - camera.eye() : Vec3{};
    uniforms.lightPosition = {static_cast<float>(lightOffset.x), static_cast<float>(lightOffset.y),
                              static_cast<float>(lightOffset.z)};
    const Color lightColor = light ? light->color : Color{0.0, 0.0, 0.0, 1.0};
    uniforms.lightColor = {static_cast<float>(srgbToLinear(lightColor.red)),
                           static_cast<float>(srgbToLinear(lightColor.green)),
                           static_cast<float>(srgbToLinear(lightColor.blue))};
    uniforms.surfaceWidth = static_cast<float>(surfaceWidth);
    return uniforms;
}

std::optional<PixelRect> pixelsOf(const PixelBox& area, int width, int height) {
    if (!(area.left <= area.right && area.bottom <= area.top)) // not a number
        return std::nullopt;
    const auto clamped = [](double value, int size) {
        return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(size)));
    };
    const int left = clamped(std::floor(area.left) - 1.0, width);
    const int bottom = clamped(std::floor(area.bottom) - 1.0, height);
    const int right = clamped(std::ceil(area.right) + 1.0, width);
    const int top = clamped(std::ceil(area.top) + 1.0, height);
    const PixelRect rect{left, bottom, right - left, top - bottom};
    if (2.0 * rect.width * rect.height > static_cast<double>(width) * height)
        return std::nullopt;
    return rect;
}

std::optional<PixelRect> unite(const std::optional<PixelRect>& a,
                               const std::optional<PixelRect>& b) {
    if (!a || !b)
        return a ? a : b;
    const int left = std::min(a->x, b->x);
    const int bottom = std::min(a->y, b->y);
    return PixelRect{left, bottom, std::max(a->x + a->width, b->x + b->width) - left,
                     std::max(a->y + a->height, b->y + b->height) - bottom};
}

std::optional<PixelRect> overlapOf(const PixelRect& a, const PixelRect& b) {
    const int left = std::max(a.x, b.x);
    const int bottom = std::max(a.y, b.y);
    const int right = std::min(a.x + a.width, b.x + b.width);
    const int top = std::min(a.y + a.height, b.y + b.height);
    if (right <= left || top <= bottom)
        return std::nullopt;
    return PixelRect{left, bottom, right - left, top - bottom};
}

} // namespace orrery::render
