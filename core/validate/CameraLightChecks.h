#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

// The camera's five fields and the light's three, in the order the popovers show them and a
// package stores them, and the check each field's text passes. The same checks serve the
// fields as they are typed and the values read from a package.
namespace orrery {

namespace cameraField {
inline constexpr std::size_t xfov = 0;
inline constexpr std::size_t yfov = 1;
inline constexpr std::size_t x = 2;
inline constexpr std::size_t y = 3;
inline constexpr std::size_t z = 4;
inline constexpr std::size_t count = 5;
} // namespace cameraField

namespace lightField {
inline constexpr std::size_t x = 0;
inline constexpr std::size_t y = 1;
inline constexpr std::size_t z = 2;
inline constexpr std::size_t count = 3;
} // namespace lightField

template <std::size_t N> using FieldTexts = std::array<std::string, N>;

// Each field's verdict on its own text; the values are applied only when all of them pass.
template <std::size_t N> struct FieldChecks {
    std::array<bool, N> valid{};
    bool all = false;
};

// The fields of view 30 to 90, the camera's x and y any number, its z in front of the origin.
FieldChecks<cameraField::count>
checkCameraFields(std::span<const std::string, cameraField::count> texts);
// The light anywhere.
FieldChecks<lightField::count>
checkLightFields(std::span<const std::string, lightField::count> texts);

} // namespace orrery
