#pragma once

#include "core/scene/Vec3.h"

#include <cmath>
#include <numbers>

// The generator works on the scene's vector type; these are the few operations only the
// sphere sampling needs.
namespace orrery::surfaces {

inline Vec3 cross(const Vec3& a, const Vec3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline Vec3 normalize(const Vec3& a) {
    const double l = length(a);
    return l > 0.0 ? a * (1.0 / l) : Vec3{0.0, 1.0, 0.0};
}

// Rotation of p about a unit axis by an angle in radians (Rodrigues).
inline Vec3 rotate(const Vec3& p, const Vec3& axis, double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return p * c + cross(axis, p) * s + axis * (dot(axis, p) * (1.0 - c));
}

// The unit direction of a latitude and longitude in degrees (+y is north).
inline Vec3 direction(double latitude, double longitude) {
    const double lat = latitude * (std::numbers::pi / 180.0);
    const double lon = longitude * (std::numbers::pi / 180.0);
    return {std::cos(lat) * std::cos(lon), std::sin(lat), -std::cos(lat) * std::sin(lon)};
}

} // namespace orrery::surfaces
