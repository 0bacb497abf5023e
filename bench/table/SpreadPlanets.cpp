#include "bench/table/SpreadPlanets.h"

#include "core/styles/GradientCatalogue.h"
#include "core/styles/SurfaceNames.h"
#include "customWin/AppDelegate.h"
#include "customWin/sceneView.h"

#include <cmath>
#include <numbers>
#include <random>
#include <string>

namespace orrery::bench {
namespace {

constexpr double kNearest = 2000.0;
constexpr double kFarthest = 12000.0;
constexpr double kDefaultRadius = 24.0;
constexpr int kStepsKept = 1000;

} // namespace

double addSpreadPlanets(window::AppDelegate& app, int count) {
    SystemEditor& editor = app.editor();
    const SceneView& scene = app.sceneview().scene();
    std::mt19937 random(11);
    std::uniform_real_distribution<double> across(-0.95, 0.95);
    std::uniform_real_distribution<double> away(kNearest, kFarthest);
    const double halfHeightPerUnit = std::tan(std::numbers::pi / 8); // 45 degrees vertically
    const double pixelsPerUnit = scene.viewHeight() / 2 / halfHeightPerUnit; // at distance 1
    const double aspect = scene.viewWidth() / scene.viewHeight();
    const double cameraZ = scene.cameraNode().position().z;
    double discs = 0.0;
    for (int i = 0; i < count; ++i) {
        const double distance = away(random);
        const double halfHeight = distance * halfHeightPerUnit;
        const std::size_t row =
            editor.createPlanet(std::to_string(1424700000 + i), "Planet " + std::to_string(i + 1));
        editor.editText(row, PlanetKey::xvalue,
                        std::to_string(across(random) * halfHeight * aspect));
        editor.editText(row, PlanetKey::yvalue, std::to_string(across(random) * halfHeight));
        editor.editText(row, PlanetKey::zvalue, std::to_string(cameraZ - distance));
        if (i % 4 != 0) {
            editor.editIndex(row, PlanetKey::styleindex,
                             i % 3 == 0 ? 0 : 1 + i % static_cast<int>(catalogue::kRowCount - 1));
            editor.editIndex(row, PlanetKey::surfaceindex, 1 + i % kSurfaceCount);
        }
        if ((i + 1) % kStepsKept == 0)
            editor.history().clear();
        discs += std::pow(kDefaultRadius * pixelsPerUnit / distance, 2) * std::numbers::pi;
    }
    editor.history().clear();
    return discs / (scene.viewWidth() * scene.viewHeight());
}

} // namespace orrery::bench
