#include "tests/imageio/SamplePicture.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

namespace orrery::testing {

Image samplePicture(int width, int height) {
    Image image(width, height);
    const double cx = width * 0.5;
    const double cy = height * 0.5;
    const double radius = std::min(width, height) * 0.4;
    unsigned noise = 12345;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double dx = x + 0.5 - cx;
            const double dy = y + 0.5 - cy;
            const double distance = std::sqrt(dx * dx + dy * dy);
            const double coverage = std::clamp(radius - distance + 0.5, 0.0, 1.0);
            if (coverage <= 0.0)
                continue;
            noise = noise * 1103515245u + 12345u;
            const double light = std::clamp(0.3 + 0.7 * (1.0 - (dx + dy) / (2 * radius)), 0.0, 1.0);
            const int grain = static_cast<int>((noise >> 16) % 40) - 20;
            std::uint8_t* p = image.pixel(x, y);
            const int base[] = {200, 120, 60};
            for (int c = 0; c < 3; ++c)
                p[c] = static_cast<std::uint8_t>(
                    std::clamp(static_cast<int>(base[c] * light) + grain, 0, 255));
            p[3] = static_cast<std::uint8_t>(std::lround(coverage * 255));
        }
    }
    return image;
}

std::array<int, 4> pixelAt(const Image& image, int x, int y) {
    const std::uint8_t* p = image.pixel(x, y);
    return {p[0], p[1], p[2], p[3]};
}

std::vector<std::uint8_t> fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace orrery::testing
