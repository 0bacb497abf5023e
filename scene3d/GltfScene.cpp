#include "scene3d/GltfScene.h"

#include "core/styles/GradientLibrary.h"
#include "core/styles/StyleImages.h"
#include "imageio/AtomicWrite.h"
#include "imageio/ImageEncoder.h"

#include <tiny_gltf.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <map>
#include <numbers>
#include <sstream>
#include <variant>

namespace orrery::scene3d {
namespace {

// A style's gradient only varies from pole to pole: a narrow strip holds it whole.
constexpr double kGradientWidth = 4.0;
constexpr double kGradientHeight = 256.0;
constexpr double kGradientAngle = 270.0; // location 0 along the top edge: the north pole

struct Texture {
    std::vector<std::uint8_t> png;
};

// Builds the glTF model: one buffer holding the sphere and, in a .glb, the pictures.
class ModelBuilder {
public:
    ModelBuilder(const SceneModel& scene, const SurfaceImages& surfaces, bool embedPictures)
        : scene_(scene), surfaces_(surfaces), embed_(embedPictures) {
        model_.asset.version = "2.0";
        model_.asset.generator = "Orrery " ORRERY_VERSION;
        model_.buffers.emplace_back();
        model_.samplers.push_back(sampler());
    }

    // Gives the model, or none with the reason.
    std::optional<tinygltf::Model> build(std::string& error) {
        addSphere();
        tinygltf::Scene root;
        for (const ScenePlanet& planet : scene_.planets) {
            tinygltf::Node node;
            node.name = planet.name;
            node.translation = {planet.position.x, planet.position.y, planet.position.z};
            node.scale = {planet.radius, planet.radius, planet.radius};
            node.mesh = meshFor(planet.material, error);
            if (!error.empty())
                return std::nullopt;
            root.nodes.push_back(addNode(std::move(node)));
        }
        root.nodes.push_back(addCamera());
        root.nodes.push_back(addLight());
        model_.scenes.push_back(std::move(root));
        model_.defaultScene = 0;
        return std::move(model_);
    }

    // The pictures a .gltf refers to, by file name.
    const std::vector<std::pair<std::string, std::vector<std::uint8_t>>>& pictureFiles() const {
        return files_;
    }
    void setPictureStem(std::string stem) { stem_ = std::move(stem); }

private:
    static tinygltf::Sampler sampler() {
        tinygltf::Sampler s;
        s.magFilter = TINYGLTF_TEXTURE_FILTER_LINEAR;
        s.minFilter = TINYGLTF_TEXTURE_FILTER_LINEAR_MIPMAP_LINEAR;
        s.wrapS = TINYGLTF_TEXTURE_WRAP_REPEAT;
        s.wrapT = TINYGLTF_TEXTURE_WRAP_CLAMP_TO_EDGE;
        return s;
    }

    int addNode(tinygltf::Node node) {
        model_.nodes.push_back(std::move(node));
        return static_cast<int>(model_.nodes.size() - 1);
    }

    // Appends bytes to the buffer, each view on a four-byte boundary, and gives its view.
    int addView(const void* data, std::size_t size, int target) {
        std::vector<unsigned char>& bytes = model_.buffers[0].data;
        bytes.resize((bytes.size() + 3) / 4 * 4);
        tinygltf::BufferView view;
        view.buffer = 0;
        view.byteOffset = bytes.size();
        view.byteLength = size;
        view.target = target;
        const auto* first = static_cast<const unsigned char*>(data);
        bytes.insert(bytes.end(), first, first + size);
        model_.bufferViews.push_back(view);
        return static_cast<int>(model_.bufferViews.size() - 1);
    }

    int addAccessor(int view, int componentType, int type, std::size_t count,
                    std::vector<double> min = {}, std::vector<double> max = {}) {
        tinygltf::Accessor accessor;
        accessor.bufferView = view;
        accessor.componentType = componentType;
        accessor.type = type;
        accessor.count = count;
        accessor.minValues = std::move(min);
        accessor.maxValues = std::move(max);
        model_.accessors.push_back(accessor);
        return static_cast<int>(model_.accessors.size() - 1);
    }

    // One unit sphere, shared by every mesh; the positions are also the normals.
    void addSphere() {
        const SphereMesh mesh = uvSphere(scene_.sphereSegments);
        const std::size_t vertices = mesh.positions.size() / 3;
        const int positions = addView(mesh.positions.data(), mesh.positions.size() * sizeof(float),
                                      TINYGLTF_TARGET_ARRAY_BUFFER);
        // Two accessors read this view, so it must say how far apart its vertices lie.
        model_.bufferViews[static_cast<std::size_t>(positions)].byteStride = 3 * sizeof(float);
        // Readers check the bounds against the vertices, to the last bit of a float.
        std::vector<double> low(3, 1.0);
        std::vector<double> high(3, -1.0);
        for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
            low[i % 3] = std::min<double>(low[i % 3], mesh.positions[i]);
            high[i % 3] = std::max<double>(high[i % 3], mesh.positions[i]);
        }
        position_ = addAccessor(positions, TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_VEC3,
                                vertices, std::move(low), std::move(high));
        normal_ =
            addAccessor(positions, TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_VEC3, vertices);
        const int uvs =
            addView(mesh.uvs.data(), mesh.uvs.size() * sizeof(float), TINYGLTF_TARGET_ARRAY_BUFFER);
        uv_ = addAccessor(uvs, TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_VEC2, vertices);
        const int indices =
            addView(mesh.indices.data(), mesh.indices.size() * sizeof(std::uint32_t),
                    TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
        indices_ = addAccessor(indices, TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT, TINYGLTF_TYPE_SCALAR,
                               mesh.indices.size());
    }

    // A texture of the picture, once per picture; -1 when there is none.
    int textureOf(const std::string& key, const std::optional<Image>& picture, std::string& error) {
        if (const auto known = textures_.find(key); known != textures_.end())
            return known->second;
        if (!picture || picture->isNull())
            return textures_[key] = -1;
        const imageio::EncodedImage png = imageio::encodeImage(*picture, ExportFormat::png, 1.0f);
        if (!png.ok()) {
            error = "the texture " + key + " cannot be encoded: " + png.error;
            return -1;
        }
        tinygltf::Image image;
        image.name = key;
        if (embed_) {
            image.mimeType = "image/png";
            image.bufferView = addView(png.bytes.data(), png.bytes.size(), 0);
        } else {
            image.uri = stem_ + "-texture" + std::to_string(model_.images.size()) + ".png";
            files_.emplace_back(image.uri, png.bytes);
        }
        model_.images.push_back(std::move(image));
        tinygltf::Texture texture;
        texture.sampler = 0;
        texture.source = static_cast<int>(model_.images.size() - 1);
        model_.textures.push_back(texture);
        return textures_[key] = static_cast<int>(model_.textures.size() - 1);
    }

    // One mesh per material: the sphere with that material.
    int meshFor(const Material& material, std::string& error) {
        tinygltf::Material out;
        out.pbrMetallicRoughness.metallicFactor = 0.0; // the renderer has no specular light
        out.pbrMetallicRoughness.roughnessFactor = 1.0;
        std::string key;
        if (const auto* colour = std::get_if<Color>(&material.diffuse)) {
            out.pbrMetallicRoughness.baseColorFactor = {colour->red, colour->green, colour->blue,
                                                        colour->alpha};
            key = std::to_string(colour->red) + "," + std::to_string(colour->green) + "," +
                  std::to_string(colour->blue) + "," + std::to_string(colour->alpha);
        } else {
            const auto& gradient = std::get<GradientTexture>(material.diffuse);
            const std::string name = "Style" + std::to_string(gradient.style);
            out.pbrMetallicRoughness.baseColorTexture.index =
                textureOf(name,
                          makeGradientImage(gradientLibrary().getGradient(gradient.style),
                                            kGradientWidth, kGradientHeight, kGradientAngle),
                          error);
            key = name;
        }
        if (!material.emission.empty()) {
            out.emissiveTexture.index =
                textureOf(material.emission, surfaces_(material.emission), error);
            if (out.emissiveTexture.index >= 0)
                out.emissiveFactor = {1.0, 1.0, 1.0};
        }
        key += "|" + material.emission;
        if (const auto known = meshes_.find(key); known != meshes_.end())
            return known->second;
        out.name = key;
        model_.materials.push_back(out);
        tinygltf::Primitive primitive;
        primitive.attributes = {{"POSITION", position_}, {"NORMAL", normal_}, {"TEXCOORD_0", uv_}};
        primitive.indices = indices_;
        primitive.mode = TINYGLTF_MODE_TRIANGLES;
        primitive.material = static_cast<int>(model_.materials.size() - 1);
        tinygltf::Mesh mesh;
        mesh.primitives.push_back(primitive);
        model_.meshes.push_back(mesh);
        return meshes_[key] = static_cast<int>(model_.meshes.size() - 1);
    }

    int addCamera() {
        tinygltf::Camera camera;
        camera.type = "perspective";
        camera.perspective.yfov = scene_.yFovDegrees * std::numbers::pi / 180.0;
        camera.perspective.aspectRatio = scene_.aspectRatio;
        camera.perspective.znear = 0.1;
        // Beyond the farthest planet, so that a viewer clips none of them.
        double farthest = 1.0;
        for (const ScenePlanet& planet : scene_.planets)
            farthest = std::max(farthest, length(planet.position - scene_.camera) + planet.radius);
        camera.perspective.zfar = 2.0 * farthest;
        model_.cameras.push_back(camera);
        tinygltf::Node node;
        node.name = "Camera";
        node.camera = 0;
        node.translation = {scene_.camera.x, scene_.camera.y, scene_.camera.z};
        return addNode(std::move(node));
    }

    // The renderer's light does not fade with distance; a glTF point light falls off with
    // its square, so it is as bright as ours where the planets are.
    int addLight() {
        tinygltf::Light light;
        light.type = "point";
        light.name = "Light";
        light.color = {scene_.lightColor.red, scene_.lightColor.green, scene_.lightColor.blue};
        double nearest = 1.0;
        if (!scene_.planets.empty()) {
            nearest = length(scene_.planets.front().position - scene_.light);
            for (const ScenePlanet& planet : scene_.planets)
                nearest = std::min(nearest, length(planet.position - scene_.light));
        }
        light.intensity = std::max(1.0, nearest * nearest);
        model_.lights.push_back(light);
        tinygltf::Node node;
        node.name = light.name;
        node.translation = {scene_.light.x, scene_.light.y, scene_.light.z};
        tinygltf::Value::Object index{{"light", tinygltf::Value(0)}};
        node.extensions["KHR_lights_punctual"] = tinygltf::Value(index);
        return addNode(std::move(node));
    }

    const SceneModel& scene_;
    const SurfaceImages& surfaces_;
    bool embed_;
    std::string stem_;
    tinygltf::Model model_;
    int position_ = -1;
    int normal_ = -1;
    int uv_ = -1;
    int indices_ = -1;
    std::map<std::string, int> textures_;
    std::map<std::string, int> meshes_;
    std::vector<std::pair<std::string, std::vector<std::uint8_t>>> files_;
};

std::span<const std::uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

} // namespace

std::string writeGltfScene(const SceneModel& scene, const std::string& path,
                           const SurfaceImages& surfaces) {
    const std::filesystem::path target(path);
    std::string extension = target.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const bool binary = extension == ".glb";
    ModelBuilder builder(scene, surfaces, binary);
    builder.setPictureStem(target.stem().string());
    std::string error;
    const std::optional<tinygltf::Model> model = builder.build(error);
    if (!model)
        return error;

    tinygltf::TinyGLTF writer;
    writer.SetImageWriter(nullptr, nullptr);
    std::ostringstream stream;
    if (!writer.WriteGltfSceneToStream(&*model, stream, !binary, binary))
        return "the scene cannot be encoded";
    // The pictures first: a .gltf that appears refers only to files that are there.
    for (const auto& [name, png] : builder.pictureFiles()) {
        error = imageio::writeFileAtomically((target.parent_path() / name).string(), png);
        if (!error.empty())
            return name + ": " + error;
    }
    return imageio::writeFileAtomically(path, bytesOf(stream.str()));
}

} // namespace orrery::scene3d
