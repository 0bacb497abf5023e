#pragma once

#include "core/scene/SceneView.h"
#include "core/styles/Image.h"
#include "render/SurfaceSource.h"

#include <optional>
#include <string>

namespace orrery {

// The view's picture at pixelWidth x pixelHeight, drawn without any display: top row
// first, straight alpha. None, with the reason in `error`, when no OpenGL context can be
// made or the picture is too large for it.
std::optional<Image> renderSceneHeadless(const SceneView& view, int pixelWidth, int pixelHeight,
                                         const SurfaceSource& surfaces, std::string* error);

} // namespace orrery
