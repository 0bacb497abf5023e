#pragma once

#include "core/export/SceneModel.h"
#include "core/styles/Image.h"

#include <functional>
#include <optional>
#include <string>

// The scene as a glTF 2.0 file for 3D tools: one sphere per shown planet, named after it,
// at its position and radius; a material whose base colour is the planet's style gradient
// (or its colour) and whose emissive texture is its surface image, as the renderer adds
// it; the camera (perspective, its vertical field of view) and the point light with its
// colour.
namespace orrery::scene3d {

using SurfaceImages = std::function<std::optional<Image>(const std::string& surfaceName)>;

// Writes a .glb (textures inside) or, for any other name, a .gltf with its textures as
// PNG files beside it ("<name>-texture<n>.png"). Every file appears whole or not at all.
// Returns an empty text, or the reason it could not be written (without the path).
std::string writeGltfScene(const SceneModel& model, const std::string& path,
                           const SurfaceImages& surfaces);

} // namespace orrery::scene3d
