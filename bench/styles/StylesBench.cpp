// Times what the style and surface menus draw when they open: the 82 style swatches at 64
// and at 128 pixels, and the 48 surface thumbnails read from the generated thumbnail files
// and scaled for the menu. Prints the median of repeated runs in milliseconds.
#include "core/styles/GradientLibrary.h"
#include "core/styles/StyleImages.h"
#include "core/styles/SurfaceNames.h"

#include <QImage>
#include <QString>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int kRuns = 25;

double medianMilliseconds(const std::function<void()>& work) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const auto end = std::chrono::steady_clock::now();
        times.push_back(std::chrono::duration<double, std::milli>(end - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void swatches(double side) {
    const orrery::gradientLibrary library;
    for (std::int64_t style = 1; style <= 82; ++style) {
        const orrery::Image swatch =
            orrery::makeGradientImage(library.getGradient(style), side, side, 270.0);
        if (swatch.isNull())
            std::abort();
    }
}

std::optional<orrery::Image> readImage(const std::filesystem::path& path) {
    QImage decoded(QString::fromStdString(path.string()));
    if (decoded.isNull())
        return std::nullopt;
    decoded = decoded.convertToFormat(QImage::Format_RGBA8888);
    orrery::Image image(decoded.width(), decoded.height());
    for (int y = 0; y < decoded.height(); ++y)
        std::copy_n(decoded.constScanLine(y), image.stride(), image.pixel(0, y));
    return image;
}

std::vector<orrery::Image> readSurfaces(bool fullSize) {
    std::vector<orrery::Image> images;
    for (long surface = 1; surface <= orrery::kSurfaceCount; ++surface) {
        const auto path =
            fullSize ? orrery::surfaceImagePath(surface) : orrery::surfaceThumbnailPath(surface);
        if (std::optional<orrery::Image> image = path ? readImage(*path) : std::nullopt)
            images.push_back(std::move(*image));
    }
    return images;
}

// Scales each picture as the menu does on a high-density screen.
void scale(const std::vector<orrery::Image>& images) {
    for (const orrery::Image& image : images)
        if (!orrery::imageResize128(image))
            std::abort();
}

} // namespace

int main() {
    const std::vector<orrery::Image> thumbnails = readSurfaces(false);
    const std::vector<orrery::Image> fullSize = readSurfaces(true);
    if (thumbnails.size() != orrery::kSurfaceCount || fullSize.size() != orrery::kSurfaceCount) {
        std::fprintf(stderr, "bench_styles: the surface files are missing; build the "
                             "'surfaces' target or set ORRERY_SURFACE_DIR\n");
        return 1;
    }
    const double small = medianMilliseconds([] { swatches(64.0); });
    const double large = medianMilliseconds([] { swatches(128.0); });
    const double read = medianMilliseconds([] { readSurfaces(false); });
    const double scaled = medianMilliseconds([&] { scale(thumbnails); });
    std::printf("82 style swatches at 64 px:             %8.2f ms\n", small);
    std::printf("82 style swatches at 128 px:            %8.2f ms\n", large);
    std::printf("48 surface thumbnail files read:        %8.2f ms\n", read);
    std::printf("48 thumbnails through imageResize128:   %8.2f ms\n", scaled);
    std::printf("all of the above:                       %8.2f ms (target 16 ms)\n",
                small + large + read + scaled);
    std::printf("for comparison, 48 full-size surfaces through imageResize128: %.1f ms\n",
                medianMilliseconds([&] { scale(fullSize); }));
    return 0;
}
