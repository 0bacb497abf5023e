#pragma once

#include "core/model/PlanetRecord.h"
#include "core/scene/Material.h"
#include "core/scene/SceneView.h"
#include "core/scene/Vec3.h"

#include <cstdint>
#include <string>
#include <vector>

// The scene as 3D tools take it (a glTF file): the shown planets as spheres named after
// them, the camera and the light, and one sphere mesh fine enough for the picture.
namespace orrery {

struct ScenePlanet {
    std::string name;
    Vec3 position;
    double radius = 1.0;
    Material material;
};

struct SceneModel {
    std::vector<ScenePlanet> planets; // in table order
    Vec3 camera;                      // looking down -z, as the window's camera does
    double yFovDegrees = 45.0;
    double aspectRatio = 16.0 / 9.0; // the document's width over its height
    Vec3 light;
    Color lightColor = kWhite;
    int sphereSegments = 32; // around the equator; half as many from pole to pole
};

// The shown planets of the view (a planet's every visible node), the camera and the light.
// Segments are chosen so that the largest planet's outline, drawn at the document's height,
// strays less than a quarter pixel from a circle.
SceneModel sceneModel(const SceneView& view, const std::vector<PlanetRecord>& planets,
                      int documentHeight);

// A sphere of radius 1 about the origin: u around the equator from -z through -x, v = 0 at
// the north pole (+y), a seam of duplicated vertices where u wraps.
struct SphereMesh {
    std::vector<float> positions; // x, y, z per vertex; also the normals
    std::vector<float> uvs;       // u, v per vertex
    std::vector<std::uint32_t> indices;
};

SphereMesh uvSphere(int segments);

} // namespace orrery
