#include "tools/surfaces/SurfaceGenerator.h"

#include "tools/surfaces/Palette.h"

#include <algorithm>
#include <atomic>
#include <numbers>
#include <thread>

namespace orrery::surfaces {

Vec3 pixelDirection(int x, int y, int width, int height) {
    const double u = (x + 0.5) / width;
    const double v = (y + 0.5) / height;
    return direction(90.0 - 180.0 * v, 360.0 * u);
}

Image renderSurface(int number, int width, int height) {
    const auto& recipes = surfaceRecipes();
    if (number < 1 || number > static_cast<int>(recipes.size()) || width <= 0 || height <= 0)
        return Image();
    const Shader shade = recipes[static_cast<std::size_t>(number - 1)].make();
    Image image(width, height);
    const auto byte = [](double c) {
        return static_cast<std::uint8_t>(clamp01(c) * 255.0 + 0.5);
    };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Rgb colour = shade(pixelDirection(x, y, width, height));
            std::uint8_t* p = image.pixel(x, y);
            p[0] = byte(colour.r);
            p[1] = byte(colour.g);
            p[2] = byte(colour.b);
            p[3] = 255;
        }
    }
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
