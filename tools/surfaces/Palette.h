#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

namespace orrery::surfaces {

// A display colour, components 0 to 1 (sRGB-encoded, as written to the file).
struct Rgb {
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
};

constexpr Rgb operator+(const Rgb& a, const Rgb& c) {
    return {a.r + c.r, a.g + c.g, a.b + c.b};
}
constexpr Rgb operator*(const Rgb& a, double s) {
    return {a.r * s, a.g * s, a.b * s};
}

// 0xRRGGBB as a colour.
constexpr Rgb hex(std::uint32_t value) {
    return {((value >> 16) & 255) / 255.0, ((value >> 8) & 255) / 255.0, (value & 255) / 255.0};
}

constexpr double clamp01(double x) {
    return x < 0.0 ? 0.0 : (x > 1.0 ? 1.0 : x);
}

constexpr double smoothstep(double edge0, double edge1, double x) {
    const double t = clamp01((x - edge0) / (edge1 - edge0));
    return t * t * (3.0 - 2.0 * t);
}

constexpr Rgb mix(const Rgb& a, const Rgb& c, double t) {
    return a + (c + a * -1.0) * t;
}

constexpr double luminance(const Rgb& c) {
    return 0.2126 * c.r + 0.7152 * c.g + 0.0722 * c.b;
}

// Colours placed along 0 to 1, interpolated in between and held beyond the ends.
class Ramp {
public:
    Ramp() = default;
    Ramp(std::initializer_list<std::pair<double, Rgb>> keys) : keys_(keys) {}

    Rgb at(double t) const {
        if (keys_.empty())
            return {};
        if (t <= keys_.front().first)
            return keys_.front().second;
        for (std::size_t i = 1; i < keys_.size(); ++i) {
            if (t <= keys_[i].first) {
                const auto& [t0, c0] = keys_[i - 1];
                const auto& [t1, c1] = keys_[i];
                return t1 > t0 ? mix(c0, c1, (t - t0) / (t1 - t0)) : c1;
            }
        }
        return keys_.back().second;
    }

private:
    std::vector<std::pair<double, Rgb>> keys_;
};

} // namespace orrery::surfaces
