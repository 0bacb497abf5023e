#include "tools/surfaces/SurfaceGenerator.h"

#include "tools/surfaces/Palette.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <numbers>
#include <thread>

namespace orrery::surfaces {

namespace {

// Surfaces glow on top of the lit planet, so bright areas wash out the shading. Highlights
// above the knee are compressed (keeping their hue); the darker range stays as drawn.
Rgb softenHighlights(const Rgb& colour) {
    constexpr double kKnee = 0.35;
    constexpr double kSlope = 0.55;
    const double l = luminance(colour);
    if (l <= kKnee)
        return colour;
    return colour * ((kKnee + (l - kKnee) * kSlope) / l);
}

// A row of an equirectangular picture spans a circle of latitude that shrinks towards
// the poles, so it needs only cos(latitude) as many samples as the equator to show the
// same detail. The samples are spread evenly round the circle and the pixels read between
// them, wrapping around, so the row stays seamless.
void renderRow(const Shader& shade, Image& image, int y) {
    const int width = image.width;
    const double v = (y + 0.5) / image.height;
    const double latitude = 90.0 - 180.0 * v;
    const double circle = std::cos(latitude * std::numbers::pi / 180.0);
    const int samples = std::clamp(static_cast<int>(std::ceil(width * circle)) + 2, 8, width);
    std::vector<Rgb> ring(static_cast<std::size_t>(samples));
    for (int i = 0; i < samples; ++i)
        ring[static_cast<std::size_t>(i)] =
            softenHighlights(shade(direction(latitude, 360.0 * (i + 0.5) / samples)));

    const auto byte = [](double c) {
        return static_cast<std::uint8_t>(clamp01(c) * 255.0 + 0.5);
    };
    for (int x = 0; x < width; ++x) {
        Rgb colour;
        if (samples == width) {
            colour = ring[static_cast<std::size_t>(x)];
        } else {
            const double position = (x + 0.5) / width * samples - 0.5;
            const double below = std::floor(position);
            const auto first =
                static_cast<std::size_t>((static_cast<int>(below) + samples) % samples);
            const std::size_t second = (first + 1) % static_cast<std::size_t>(samples);
            colour = mix(ring[first], ring[second], position - below);
        }
        std::uint8_t* p = image.pixel(x, y);
        p[0] = byte(colour.r);
        p[1] = byte(colour.g);
        p[2] = byte(colour.b);
        p[3] = 255;
    }
}

} // namespace

Image renderSurface(int number, int width, int height) {
    const auto& recipes = surfaceRecipes();
    if (number < 1 || number > static_cast<int>(recipes.size()) || width <= 0 || height <= 0)
        return Image();
    const Shader shade = recipes[static_cast<std::size_t>(number - 1)].make();
    Image image(width, height);
    for (int y = 0; y < height; ++y)
        renderRow(shade, image, y);
    return image;
}

std::vector<Image> renderAllSurfaces(int width, int height, unsigned threads) {
    const int count = static_cast<int>(surfaceRecipes().size());
    std::vector<Image> images(static_cast<std::size_t>(count));
    std::atomic<int> next{0};
    const auto work = [&] {
        for (int i = next++; i < count; i = next++)
            images[static_cast<std::size_t>(i)] = renderSurface(i + 1, width, height);
    };
    std::vector<std::thread> workers;
    for (unsigned t = 1; t < std::max(1u, threads); ++t)
        workers.emplace_back(work);
    work();
    for (std::thread& worker : workers)
        worker.join();
    return images;
}

} // namespace orrery::surfaces
