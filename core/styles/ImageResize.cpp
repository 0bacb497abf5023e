#include "core/styles/StyleImages.h"
#include "core/support/Log.h"

#include <algorithm>
#include <cmath>

namespace orrery {
namespace {

struct Tap {
    int index = 0;
    float weight = 0.0f;
};

// The source samples that make up each output sample along one axis. Shrinking averages
// the area an output pixel covers (no aliasing, no lost detail between samples);
// enlarging interpolates linearly between the two nearest pixel centres.
std::vector<std::vector<Tap>> taps(int source, int target) {
    std::vector<std::vector<Tap>> result(static_cast<std::size_t>(target));
    const double step = static_cast<double>(source) / target;
    for (int i = 0; i < target; ++i) {
        std::vector<Tap>& out = result[static_cast<std::size_t>(i)];
        if (target < source) {
            const double begin = i * step;
            const double end = begin + step;
            const int last = std::min(source - 1, static_cast<int>(std::ceil(end)) - 1);
            for (int j = static_cast<int>(begin); j <= last; ++j) {
                const double covered =
                    std::min(end, j + 1.0) - std::max(begin, static_cast<double>(j));
                if (covered > 0.0)
                    out.push_back({j, static_cast<float>(covered / step)});
            }
        } else {
            const double centre = std::clamp((i + 0.5) * step - 0.5, 0.0, source - 1.0);
            const int left = static_cast<int>(centre);
            const auto rightShare = static_cast<float>(centre - left);
            out.push_back({left, 1.0f - rightShare});
            if (rightShare > 0.0f)
                out.push_back({left + 1, rightShare});
        }
    }
    return result;
}

// Resampling runs on premultiplied samples so that the colour of fully transparent pixels
// never bleeds into the edge of what is drawn.
Image resample(const Image& image, int width, int height) {
    const auto columns = taps(image.width, width);
    const auto rows = taps(image.height, height);
    const std::size_t lineLength = static_cast<std::size_t>(width) * 4;

    std::vector<float> horizontal(static_cast<std::size_t>(image.height) * lineLength);
    for (int y = 0; y < image.height; ++y) {
        float* out = horizontal.data() + static_cast<std::size_t>(y) * lineLength;
        for (int x = 0; x < width; ++x, out += 4) {
            for (const Tap& tap : columns[static_cast<std::size_t>(x)]) {
                const std::uint8_t* p = image.pixel(tap.index, y);
                const float alpha = p[3] * tap.weight;
                out[0] += p[0] * alpha;
                out[1] += p[1] * alpha;
                out[2] += p[2] * alpha;
                out[3] += alpha;
            }
        }
    }

    Image result(width, height);
    std::vector<float> line(lineLength);
    for (int y = 0; y < height; ++y) {
        std::fill(line.begin(), line.end(), 0.0f);
        for (const Tap& tap : rows[static_cast<std::size_t>(y)]) {
            const float* in = horizontal.data() + static_cast<std::size_t>(tap.index) * lineLength;
            for (std::size_t i = 0; i < lineLength; ++i)
                line[i] += in[i] * tap.weight;
        }
        std::uint8_t* out = result.pixel(0, y);
        for (std::size_t i = 0; i < lineLength; i += 4) {
            const float alpha = line[i + 3];
            if (alpha <= 0.0f)
                continue;
            for (std::size_t c = 0; c < 3; ++c)
                out[i + c] =
                    static_cast<std::uint8_t>(std::min(255.0f, line[i + c] / alpha + 0.5f));
            out[i + 3] = static_cast<std::uint8_t>(std::min(255.0f, alpha + 0.5f));
        }
    }
    return result;
}

} // namespace

std::optional<Image> imageResize(const Image& image, int target) {
    if (image.isNull()) {
        logMessage("Invalid Image");
        return std::nullopt;
    }
    if (target < 1)
        return std::nullopt;
    const bool wide = image.width >= image.height;
    const double longer = wide ? image.width : image.height;
    const double shorter = wide ? image.height : image.width;
    const int across = std::max(1, static_cast<int>(std::lround(shorter * target / longer)));
    const int width = wide ? target : across;
    const int height = wide ? across : target;
    if (width == image.width && height == image.height) {
        Image copy = image;
        copy.pointWidth = width;
        copy.pointHeight = height;
        return copy;
    }
    return resample(image, width, height);
}

std::optional<Image> imageResize32(const Image& image) {
    return imageResize(image, 32);
}
std::optional<Image> imageResize64(const Image& image) {
    return imageResize(image, 64);
}
std::optional<Image> imageResize128(const Image& image) {
    return imageResize(image, 128);
}

} // namespace orrery
