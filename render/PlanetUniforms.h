#pragma once

#include "core/scene/CameraProjection.h"
#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"

#include <array>
#include <optional>

// What a frame's planet shaders are given, and which pixels of the canvas a change touches:
// the two things that decide whether a frame can redraw only part of the last picture.
namespace orrery::render {

// Whole pixels of a picture, from its bottom-left corner.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// The values every planet shader is given: the picture drawn with them stays right while
// they stay the same.
struct PlanetUniforms {
    std::array<float, 16> projection{};
    float pixelAngle = 0.0f;
    std::array<float, 2> viewport{}; // the picture's width and height in pixels
    std::array<float, 4> tile{};     // the part drawn: x, y, width, height in the picture
    std::array<float, 2> ndcToRay{};
    std::array<float, 3> lightPosition{}; // relative to the eye
    std::array<float, 3> lightColor{};    // linear
    float surfaceWidth = 0.0f;

    friend bool operator==(const PlanetUniforms&, const PlanetUniforms&) = default;
};

// The picture is width x height pixels; the canvas holds its part `tile`.
PlanetUniforms planetUniforms(const CameraProjection& camera,
                              const std::optional<SceneLight>& light, int width, int height,
                              const PixelRect& tile, int surfaceWidth);

// The whole pixels, with one to spare on each side for rounding, that hold an area of the
// picture; none when it holds most of the picture, which is then drawn whole.
std::optional<PixelRect> pixelsOf(const PixelBox& area, int width, int height);

// The smallest rectangle holding both; none for none on either side.
std::optional<PixelRect> unite(const std::optional<PixelRect>& a,
                               const std::optional<PixelRect>& b);
// The pixels in both; none when they share none.
std::optional<PixelRect> overlapOf(const PixelRect& a, const PixelRect& b);

} // namespace orrery::render
