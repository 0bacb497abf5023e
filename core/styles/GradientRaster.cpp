#include "core/styles/Raster.h"
#include "core/styles/StyleImages.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace orrery {
namespace {

// Out-of-order stops are sorted by location with ties kept in list order; this is the one
// rule every picture of a gradient follows. At a tie the later stop wins from there on,
// which gives a hard edge.
std::vector<GradientColorStop> sortedStops(const Gradient& gradient) {
    std::vector<GradientColorStop> stops = gradient.stops;
    for (GradientColorStop& stop : stops)
        if (std::isnan(stop.location))
            stop.location = 0.0;
    std::stable_sort(stops.begin(), stops.end(),
                     [](const auto& a, const auto& b) { return a.location < b.location; });
    return stops;
}

raster::Pixel pixelOf(const GradientColorStop& stop) {
    return {raster::toByte(stop.red), raster::toByte(stop.green), raster::toByte(stop.blue),
            raster::toByte(stop.alpha)};
}

raster::Pixel mix(const GradientColorStop& a, const GradientColorStop& b, double f) {
    const auto lerp = [f](double from, double to) {
        return from + (to - from) * f;
    };
    return {raster::toByte(lerp(a.red, b.red)), raster::toByte(lerp(a.green, b.green)),
            raster::toByte(lerp(a.blue, b.blue)), raster::toByte(lerp(a.alpha, b.alpha))};
}

// The colour at location t, interpolated in sRGB; the first colour before the first stop
// and the last after the last.
raster::Pixel colourAt(const std::vector<GradientColorStop>& stops, double t) {
    if (t <= stops.front().location)
        return pixelOf(stops.front());
    if (t >= stops.back().location)
        return pixelOf(stops.back());
    const auto next =
        std::upper_bound(stops.begin(), stops.end(), t,
                         [](double value, const auto& stop) { return value < stop.location; });
    const auto& before = *(next - 1);
    return mix(before, *next, (t - before.location) / (next->location - before.location));
}

// Unit direction of an angle in degrees, counter-clockwise from +x with y up. Multiples of
// 90 are exact, so an axis-aligned gradient has no stray tilt across a large image.
std::pair<double, double> direction(double angle) {
    double degrees = std::isfinite(angle) ? std::fmod(angle, 360.0) : 0.0;
    if (degrees < 0.0)
        degrees += 360.0;
    if (degrees == 0.0)
        return {1.0, 0.0};
    if (degrees == 90.0)
        return {0.0, 1.0};
    if (degrees == 180.0)
        return {-1.0, 0.0};
    if (degrees == 270.0)
        return {0.0, -1.0};
    const double radians = degrees * std::numbers::pi / 180.0;
    return {std::cos(radians), std::sin(radians)};
}

// Location as an affine function of the pixel index: t = t0 + tx * x + ty * y, with x and
// y counting pixels from the top-left. The start and end lines pass through the opposite
// corners of the rectangle, so locations 0 and 1 just cover it.
struct LocationPlane {
    double t0 = 0.0;
    double tx = 0.0;
    double ty = 0.0;
};

LocationPlane locationPlane(const Image& image, double angle) {
    const auto [dx, dy] = direction(angle);
    const double w = image.pointWidth;
    const double h = image.pointHeight;
    const double lowest = std::min(0.0, w * dx) + std::min(0.0, h * dy);
    const double highest = std::max(0.0, w * dx) + std::max(0.0, h * dy);
    const double span = highest - lowest;
    // Pixel centres in points, y measured upwards from the bottom edge.
    const double sx = w / image.width;
    const double sy = h / image.height;
    LocationPlane plane;
    plane.tx = sx * dx / span;
    plane.ty = -sy * dy / span;
    plane.t0 = (0.5 * sx * dx + (h - 0.5 * sy) * dy - lowest) / span;
    return plane;
}

void fillVertical(Image& image, const std::vector<GradientColorStop>& stops,
                  const LocationPlane& plane) {
    for (int y = 0; y < image.height; ++y) {
        const double t = plane.t0 + plane.ty * y;
        raster::fillPixels(image.pixel(0, y), static_cast<std::size_t>(image.width),
                           colourAt(stops, t));
    }
}

void fillHorizontal(Image& image, const std::vector<GradientColorStop>& stops,
                    const LocationPlane& plane) {
    for (int x = 0; x < image.width; ++x)
        raster::fillPixels(image.pixel(x, 0), 1, colourAt(stops, plane.t0 + plane.tx * x));
    for (int y = 1; y < image.height; ++y)
        std::copy_n(image.pixel(0, 0), image.stride(), image.pixel(0, y));
}

// Oblique angles: a lookup table fine enough for several entries per pixel step keeps
// the per-pixel work to one multiply-add and a copy.
void fillOblique(Image& image, const std::vector<GradientColorStop>& stops,
                 const LocationPlane& plane) {
    const std::size_t perimeter = 2 * (static_cast<std::size_t>(image.width) + image.height);
    const std::size_t entries = std::clamp<std::size_t>(4 * perimeter, 256, 1u << 16);
    const double last = static_cast<double>(entries - 1);
    std::vector<raster::Pixel> table(entries);
    for (std::size_t i = 0; i < entries; ++i)
        table[i] = colourAt(stops, static_cast<double>(i) / last);
    for (int y = 0; y < image.height; ++y) {
        std::uint8_t* row = image.pixel(0, y);
        const double rowStart = plane.t0 + plane.ty * y;
        for (int x = 0; x < image.width; ++x) {
            const double position = std::clamp((rowStart + plane.tx * x) * last, 0.0, last);
            const auto index = static_cast<std::size_t>(position + 0.5);
            raster::fillPixels(row + static_cast<std::size_t>(x) * 4, 1, table[index]);
        }
    }
}

} // namespace

Image makeGradientImage(const std::optional<Gradient>& gradient, double width, double height,
                        double angle) {
    Image image = raster::blankImage(width, height);
    if (!gradient || gradient->stops.empty() || image.isNull())
        return image;
    const std::vector<GradientColorStop> stops = sortedStops(*gradient);
    const LocationPlane plane = locationPlane(image, angle);
    if (plane.tx == 0.0)
        fillVertical(image, stops, plane);
    else if (plane.ty == 0.0)
        fillHorizontal(image, stops, plane);
    else
        fillOblique(image, stops, plane);
    return image;
}

Image createGradientImage(const std::vector<GradientStopText>& stops, double width, double height,
                          double angle) {
    return makeGradientImage(gradientFromStops(stops), width, height, angle);
}

} // namespace orrery
