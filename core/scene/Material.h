#pragma once

#include "core/model/Color.h"

#include <cstdint>
#include <string>
#include <variant>

namespace orrery {

// A style's gradient drawn into a width x height image at an angle (degrees): the diffuse
// texture of a styled planet. Only the request is kept; the image itself depends on
// nothing but these values, so a renderer may draw it at whatever resolution it likes.
struct GradientTexture {
    std::int64_t style = 0;
    double width = 0.0;
    double height = 0.0;
    double angle = 0.0;

    friend bool operator==(const GradientTexture&, const GradientTexture&) = default;
};

using DiffuseContents = std::variant<Color, GradientTexture>;

// The one material a sphere may carry. Emission is the name of a surface image, added on
// top of the lit diffuse colour; an empty name emits nothing.
struct Material {
    DiffuseContents diffuse = Color{1.0, 1.0, 1.0, 1.0};
    std::string emission;

    friend bool operator==(const Material&, const Material&) = default;
};

} // namespace orrery
