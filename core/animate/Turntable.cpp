#include "core/animate/Turntable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace orrery {
namespace {

constexpr int kFramesPerFastestTurn = 8;

struct PlanetBounds {
    Vec3 centre;
    double largestRadius = 0.0;
};

// The middle of the box that holds every shown planet, and the largest radius among them.
PlanetBounds planetBounds(const SceneNode& root) {
    constexpr double kFar = std::numeric_limits<double>::infinity();
    Vec3 low{kFar, kFar, kFar};
    Vec3 high{-kFar, -kFar, -kFar};
    double largest = 0.0;
    for (const auto& node : root.children()) {
        if (node->isHidden() || !node->sphere())
            continue;
        const double r = node->sphere()->radius;
        const Vec3 p = node->position();
        low = {std::min(low.x, p.x - r), std::min(low.y, p.y - r), std::min(low.z, p.z - r)};
        high = {std::max(high.x, p.x + r), std::max(high.y, p.y + r), std::max(high.z, p.z + r)};
        largest = std::max(largest, r);
    }
    if (largest <= 0.0)
        return {};
    return {(low + high) * 0.5, largest};
}

} // namespace

int turnsPerLoop(SpinMode spin, double radius, double largestRadius, int frames) {
    if (spin == SpinMode::same || !(radius > 0.0) || !(largestRadius > radius))
        return 1;
    const int fastest = std::max(1, frames / kFramesPerFastestTurn);
    const double ratio = std::min(largestRadius / radius, static_cast<double>(fastest));
    return std::clamp(static_cast<int>(std::lround(ratio)), 1, fastest);
}

double surfaceTurn(int turns, int frame, int frames) {
    // In whole numbers first, so that the same frame gives the same bits on every run.
    const long long step = static_cast<long long>(turns) * frame % frames;
    return static_cast<double>(step) / frames;
}

Vec3 orbitingLight(Vec3 light, Vec3 centre, int frame, int frames) {
    const double angle = 2.0 * std::numbers::pi * (frame % frames) / frames;
    const Vec3 arm = light - centre;
    // West to east seen from the north (+y): +z goes towards +x.
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return centre + Vec3{arm.x * c + arm.z * s, arm.y, arm.z * c - arm.x * s};
}

Turntable::Turntable(SceneView& view, const AnimationOptions& options)
    : view_(view), frames_(options.frames), spin_(options.spin), lightOrbit_(options.lightOrbit),
      light_(view.lightState()) {
    const PlanetBounds bounds = planetBounds(view.scene().rootNode());
    centre_ = bounds.centre;
    largestRadius_ = bounds.largestRadius;
}

void Turntable::showFrame(int frame) {
    view_.setSurfaceTurns([this, frame](const Sphere& sphere) {
        return surfaceTurn(turnsPerLoop(spin_, sphere.radius, largestRadius_, frames_), frame,
                           frames_);
    });
    if (lightOrbit_)
        view_.setLightState(
            {orbitingLight(light_.position, centre_, frame, frames_), light_.color});
}

void Turntable::restore() {
    view_.setSurfaceTurns([](const Sphere&) { return 0.0; });
    view_.setLightState(light_);
}

} // namespace orrery
