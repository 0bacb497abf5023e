// Draws a few styled planets wearing the generated surfaces and writes the picture as a
// PNG, to judge the renderer by eye: planet_portrait OUT.png [WIDTH HEIGHT]. A second
// file OUT-navy.png shows the picture laid over the export's navy background.
#include "core/export/ExportFormat.h"
#include "core/export/ExportPicture.h"
#include "core/scene/SceneView.h"
#include "imageio/ImageFile.h"
#include "imageio/SurfaceLibrary.h"
#include "render/HeadlessRender.h"

#include <cstdio>
#include <string>

namespace {

struct PortraitPlanet {
    const char* x;
    const char* y;
    const char* z;
    const char* radius;
    std::int64_t style;
    std::int64_t surface;
    orrery::Color color;
};

// A large banded planet at the back, a lit pair in the middle, small moons in front; one
// of them coloured, one plain white without surface.
constexpr PortraitPlanet kPlanets[] = {
    {"-90", "20", "-200", "110", 0, 13, {0.25, 0.3, 0.45, 1.0}},
    {"110", "-30", "-20", "60", 16, 7, {1.0, 1.0, 1.0, 1.0}},
    {"20", "70", "60", "28", 0, 25, {0.5, 0.45, 0.4, 1.0}},
    {"-40", "-80", "120", "22", 6, 40, {1.0, 1.0, 1.0, 1.0}},
    {"200", "100", "-100", "35", 0, 3, {0.4, 0.2, 0.1, 1.0}},
    {"-230", "-90", "0", "40", 24, 31, {1.0, 1.0, 1.0, 1.0}},
    {"190", "-130", "150", "12", 0, 0, {1.0, 1.0, 1.0, 1.0}},
};

bool writePng(const orrery::Image& image, const std::string& path) {
    const std::string error =
        orrery::imageio::writeImageFile(image, path, orrery::ExportFormat::png, 1.0f);
    if (!error.empty())
        std::fprintf(stderr, "planet_portrait: %s: %s\n", path.c_str(), error.c_str());
    return error.empty();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 4) {
        std::fprintf(stderr, "usage: planet_portrait OUT.png [WIDTH HEIGHT]\n");
        return 1;
    }
    const int width = argc == 4 ? std::stoi(argv[2]) : 1200;
    const int height = argc == 4 ? std::stoi(argv[3]) : 675;

    orrery::SceneView view;
    view.setViewSize(width, height);
    view.updateLight("-300", "250", "400");
    int tsecs = 1;
    for (const PortraitPlanet& planet : kPlanets)
        view.createPlanet2(std::to_string(tsecs++), planet.color, planet.style, planet.surface,
                           planet.x, planet.y, planet.z, planet.radius);

    orrery::imageio::SurfaceLibrary library;
    std::string error;
    const auto image = orrery::renderSceneHeadless(
        view, width, height, [&](const std::string& name) { return library.surfaceNamed(name); },
        &error);
    if (!image) {
        std::fprintf(stderr, "planet_portrait: %s\n", error.c_str());
        return 2;
    }
    std::string path = argv[1];
    const std::string navyPath =
        (path.ends_with(".png") ? path.substr(0, path.size() - 4) : path) + "-navy.png";
    const orrery::Color navy{20 / 255.0, 30 / 255.0, 80 / 255.0, 1.0};
    return writePng(*image, path) && writePng(orrery::overImage3(*image, navy), navyPath) ? 0 : 3;
}
