#include "core/export/SceneModel.h"

#include "core/scene/PlanetNodes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orrery {
namespace {

constexpr int kFewestSegments = 32;
constexpr int kMostSegments = 512;
constexpr double kLargestStrayPixels = 0.25;

// A polygon of n sides inside a circle of r pixels strays r (1 - cos(pi / n)) from it.
int segmentsFor(double radiusPixels) {
    if (radiusPixels <= kLargestStrayPixels)
        return kFewestSegments;
    const double n = std::numbers::pi / std::acos(1.0 - kLargestStrayPixels / radiusPixels);
    return std::clamp(static_cast<int>(std::ceil(n / 2.0)) * 2, kFewestSegments, kMostSegments);
}

} // namespace

SceneModel sceneModel(const SceneView& view, const std::vector<PlanetRecord>& planets,
                      int documentHeight) {
    SceneModel model;
    const SceneNode& camera = view.cameraNode();
    model.camera = camera.position();
    model.yFovDegrees = camera.camera() ? camera.camera()->yFov : model.yFovDegrees;
    model.light = view.lightNode().position();
    model.lightColor = view.lightNode().light() ? view.lightNode().light()->color : kWhite;
    const double pixelsPerUnitAtOne =
        documentHeight / 2.0 / std::tan(model.yFovDegrees * std::numbers::pi / 360.0);
    double largest = 0.0;
    for (const PlanetRecord& record : planets) {
        for (const auto& node :
             view.scene().rootNode().childNodesNamed(planetNodeName(record.tsecs))) {
            if (node->isHidden() || !node->sphere())
                continue;
            const Vec3 at = node->worldPosition();
            const double radius = node->sphere()->radius;
            model.planets.push_back(
                {record.name, at, radius, node->sphere()->material.value_or(Material{})});
            const double distance = length(at - model.camera);
            if (distance > radius)
                largest = std::max(largest, radius / distance * pixelsPerUnitAtOne);
        }
    }
    model.sphereSegments = segmentsFor(largest);
    return model;
}

SphereMesh uvSphere(int segments) {
    SphereMesh mesh;
    const int rings = segments / 2;
    for (int ring = 0; ring <= rings; ++ring) {
        const double v = static_cast<double>(ring) / rings;
        const double polar = v * std::numbers::pi;
        for (int step = 0; step <= segments; ++step) {
            const double u = static_cast<double>(step) / segments;
            const double around = u * 2.0 * std::numbers::pi;
            // u = 0 faces -z and grows through -x, +z and +x, as the renderer's does.
            mesh.positions.insert(mesh.positions.end(),
                                  {static_cast<float>(-std::sin(polar) * std::sin(around)),
                                   static_cast<float>(std::cos(polar)),
                                   static_cast<float>(-std::sin(polar) * std::cos(around))});
            mesh.uvs.insert(mesh.uvs.end(), {static_cast<float>(u), static_cast<float>(v)});
        }
    }
    const auto vertex = [segments](int ring, int step) {
        return static_cast<std::uint32_t>(ring * (segments + 1) + step);
    };
    for (int ring = 0; ring < rings; ++ring)
        for (int step = 0; step < segments; ++step) {
            // Counter-clockwise seen from outside; the poles' degenerate halves are left out.
            if (ring != 0)
                mesh.indices.insert(mesh.indices.end(), {vertex(ring, step), vertex(ring + 1, step),
                                                         vertex(ring, step + 1)});
            if (ring != rings - 1)
                mesh.indices.insert(
                    mesh.indices.end(),
                    {vertex(ring, step + 1), vertex(ring + 1, step), vertex(ring + 1, step + 1)});
        }
    return mesh;
}

} // namespace orrery
