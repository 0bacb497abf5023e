// Prints, for each picture format, how long exporting a 1920 x 1080 scene takes and,
// beside it, how long the bare encoder takes to encode the same pixels into memory; the
// difference is what the export adds (laying the background colour under the picture and
// the safe write: temporary file, sync to disk, rename).
//
//   build/<dir>/bench/export/bench_export [runs]

#include "core/export/ExportPicture.h"
#include "imageio/ImageEncoder.h"
#include "imageio/ImageFile.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

using namespace orrery;

constexpr float kCompression = 0.85f;
constexpr long kNavyBackground = 3;

// Planets as the renderer leaves them: lit spheres with banded, grainy surfaces and soft
// edges on transparent space, so the encoders see realistic content.
Image scenePicture(int width, int height) {
    struct Disc {
        double x, y, radius, red, green, blue;
    };
    const Disc discs[] = {{960, 540, 300, 0.9, 0.6, 0.3},  {420, 300, 140, 0.3, 0.5, 0.9},
                          {1500, 760, 180, 0.6, 0.8, 0.9}, {1620, 250, 70, 0.8, 0.3, 0.2},
                          {250, 850, 90, 0.5, 0.9, 0.5},   {1200, 150, 40, 0.9, 0.9, 0.8}};
    Image image(width, height);
    unsigned noise = 2024;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (const Disc& d : discs) {
                const double dx = (x + 0.5 - d.x) / d.radius;
                const double dy = (y + 0.5 - d.y) / d.radius;
                const double r2 = dx * dx + dy * dy;
                const double coverage =
                    std::clamp((1.0 - std::sqrt(r2)) * d.radius + 0.5, 0.0, 1.0);
                if (coverage <= 0.0)
                    continue;
                noise = noise * 1664525u + 1013904223u;
                const double nz = std::sqrt(std::max(0.0, 1.0 - r2));
                const double light = std::max(0.0, -0.5 * dx - 0.4 * dy + 0.77 * nz);
                const double band = 0.8 + 0.2 * std::sin(dy * 14.0);
                const double grain = ((noise >> 24) / 255.0 - 0.5) * 0.08;
                const double shade = std::clamp(light * band + grain, 0.0, 1.0);
                std::uint8_t* p = image.pixel(x, y);
                p[0] = static_cast<std::uint8_t>(std::lround(255 * d.red * shade));
                p[1] = static_cast<std::uint8_t>(std::lround(255 * d.green * shade));
                p[2] = static_cast<std::uint8_t>(std::lround(255 * d.blue * shade));
                p[3] = static_cast<std::uint8_t>(std::lround(255 * coverage));
                break;
            }
        }
    }
    return image;
}

double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    QTemporaryDir folder;
    if (!folder.isValid()) {
        std::fprintf(stderr, "bench_export: no temporary folder\n");
        return 1;
    }
    const Image scene = scenePicture(1920, 1080);
    const Image laid = exportPicture(scene, kNavyBackground, true);

    std::printf("1920 x 1080, median of %d runs, compression %.2f\n", runs, kCompression);
    std::printf("%-10s %12s %12s %12s %12s\n", "format", "export ms", "encoder ms", "added ms",
                "file bytes");
    for (const ExportFormatInfo& info : kExportFormats) {
        const std::string path =
            folder.filePath(QString("bench.") + info.fileType.data()).toStdString();
        std::string error;
        std::vector<double> exportTimes;
        std::vector<double> encoderTimes;
        // Alternating the two keeps a busy machine from favouring one of them.
        for (int run = 0; run < runs && error.empty(); ++run) {
            exportTimes.push_back(milliseconds([&] {
                error = imageio::writeImageFile(exportPicture(scene, kNavyBackground, true), path,
                                                info.format, kCompression);
            }));
            encoderTimes.push_back(
                milliseconds([&] { (void)imageio::encodeImage(laid, info.format, kCompression); }));
        }
        if (!error.empty()) {
            std::fprintf(stderr, "bench_export: %s: %s\n", path.c_str(), error.c_str());
            return 1;
        }
        const double exportTime = median(exportTimes);
        const double encoderTime = median(encoderTimes);
        const auto size = QFileInfo(QString::fromStdString(path)).size();
        std::printf("%-10s %12.1f %12.1f %12.1f %12lld\n", std::string(info.name).c_str(),
                    exportTime, encoderTime, exportTime - encoderTime,
                    static_cast<long long>(size));
    }
    return 0;
}
