#include "scene3d/GltfScene.h"
#include "core/export/PackageScene.h"
#include "core/package/ProjectSettings.h"
#include "core/styles/StyleImages.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <tiny_gltf.h>

#include <filesystem>

namespace orrery::scene3d {
namespace {

// Three planets: a blue one, a styled one with a surface, one hidden in the scene.
SceneModel sampleScene(SceneView& view) {
    ProjectDocument document;
    document.documentWidth = "960";
    document.documentHeight = "540";
    document.cameraSettings = {"45.0", "45.0", "0.000000", "0.000000", "500.000000", "1", "1"};
    document.lightPosition = {100.0, 50.0, 300.0};
    document.lightColor = {1.0, 0.5, 0.25, 1.0};
    PlanetRecord plain = newPlanetRecord("1", "Plain");
    plain.xvalue = "-100";
    plain.radius = "40";
    plain.surfaceindex = "7"; // coloured only with a surface; this one has no picture
    PlanetRecord styled = newPlanetRecord("2", "Ærø");
    styled.xvalue = "120";
    styled.yvalue = "-30";
    styled.radius = "60";
    styled.styleindex = "5";
    styled.surfaceindex = "3";
    document.planets = {plain, styled, newPlanetRecord("3", "Hidden")};
    const OpenedProject project = openedProject(document);
    loadPackageScene(view, project);
    view.updateStatus("3", 0);
    return sceneModel(view, project.planets, 540);
}

std::optional<Image> fakeSurface(const std::string& name) {
    if (name != "Surface003")
        return std::nullopt;
    return createColorImage(64, 32, {0.2, 0.8, 0.4, 1.0});
}

bool anyImage(tinygltf::Image*, const int, std::string*, std::string*, int, int,
              const unsigned char*, int, void*) {
    return true; // the pictures are checked as bytes, not decoded
}

tinygltf::Model readBack(const std::string& path) {
    tinygltf::TinyGLTF reader;
    reader.SetImageLoader(anyImage, nullptr);
    tinygltf::Model model;
    std::string error;
    std::string warning;
    const bool binary = path.ends_with(".glb");
    const bool read = binary ? reader.LoadBinaryFromFile(&model, &error, &warning, path)
                             : reader.LoadASCIIFromFile(&model, &error, &warning, path);
    EXPECT_TRUE(read) << error;
    return model;
}

TEST(GltfScene, ShownPlanetsAreSpheresAtTheirPlaceWithTheirTextures_CameraAndLightToo) {
    SceneView view;
    const SceneModel scene = sampleScene(view);
    ASSERT_EQ(scene.planets.size(), 2u);
    QTemporaryDir folder;
    for (const char* name : {"scene.glb", "scene.gltf"}) {
        const std::string path = folder.filePath(name).toStdString();
        ASSERT_EQ(writeGltfScene(scene, path, fakeSurface), "");
        const tinygltf::Model model = readBack(path);
        ASSERT_EQ(model.nodes.size(), 4u) << name;
        const tinygltf::Node& plain = model.nodes[0];
        const tinygltf::Node& styled = model.nodes[1];
        EXPECT_EQ(plain.name, "Plain");
        EXPECT_EQ(styled.name, "Ærø");
        EXPECT_EQ(plain.translation, (std::vector<double>{-100, 0, 0}));
        EXPECT_EQ(styled.translation, (std::vector<double>{120, -30, 0}));
        EXPECT_EQ(plain.scale, (std::vector<double>{40, 40, 40}));
        EXPECT_EQ(styled.scale, (std::vector<double>{60, 60, 60}));

        const auto material = [&](const tinygltf::Node& node) {
            const int index =
                model.meshes[static_cast<std::size_t>(node.mesh)].primitives[0].material;
            return model.materials[static_cast<std::size_t>(index)];
        };
        EXPECT_EQ(material(plain).pbrMetallicRoughness.baseColorFactor,
                  (std::vector<double>{0, 0, 1, 1}));
        EXPECT_EQ(material(plain).emissiveTexture.index, -1);
        EXPECT_GE(material(styled).pbrMetallicRoughness.baseColorTexture.index, 0);
        EXPECT_GE(material(styled).emissiveTexture.index, 0);
        ASSERT_EQ(model.images.size(), 2u);
        for (const tinygltf::Image& image : model.images)
            if (std::string(name).ends_with(".gltf"))
                EXPECT_TRUE(std::filesystem::exists(
                    folder.filePath(QString::fromStdString(image.uri)).toStdString()));
            else
                EXPECT_EQ(image.mimeType, "image/png");

        ASSERT_EQ(model.cameras.size(), 1u);
        EXPECT_NEAR(model.cameras[0].perspective.yfov, 0.7853981634, 1e-9);
        EXPECT_EQ(model.nodes[2].translation, (std::vector<double>{0, 0, 500}));
        ASSERT_EQ(model.lights.size(), 1u);
        EXPECT_EQ(model.lights[0].color, (std::vector<double>{1.0, 0.5, 0.25}));
        EXPECT_EQ(model.nodes[3].translation, (std::vector<double>{100, 50, 300}));
    }
}

TEST(GltfScene, TheSphereIsFineEnoughForTheLargestPlanet) {
    // A planet that fills the picture's height needs many more sides than a small one.
    SceneView view;
    SceneModel scene = sampleScene(view);
    const int small = scene.sphereSegments;
    EXPECT_GE(small, 32);
    scene = sceneModel(view, {}, 540);
    EXPECT_EQ(scene.sphereSegments, 32);
    const SphereMesh mesh = uvSphere(small);
    for (std::size_t i = 0; i < mesh.positions.size(); i += 3)
        ASSERT_NEAR(std::hypot(mesh.positions[i], mesh.positions[i + 1], mesh.positions[i + 2]),
                    1.0, 1e-6);
    EXPECT_TRUE(std::all_of(mesh.indices.begin(), mesh.indices.end(),
                            [&](std::uint32_t v) { return v < mesh.positions.size() / 3; }));
}

} // namespace
} // namespace orrery::scene3d
