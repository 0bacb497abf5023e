#include "RenderTestSupport.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace orrery::testing {

void RenderTest::SetUp() {
    std::string error;
    context = HeadlessContext::create(&error);
    ASSERT_TRUE(context) << "cannot draw without an OpenGL context: " << error;
    renderer = Renderer::create(
        [this](const std::string& name) -> std::optional<Image> {
            ++surfaceRequests;
            const auto found = surfaces.find(name);
            return found == surfaces.end() ? std::nullopt : std::optional<Image>(found->second);
        },
        &error);
    ASSERT_TRUE(renderer) << error;
}

void RenderTest::TearDown() {
    renderer.reset(); // its OpenGL objects go while the context is still there
    context.reset();
}

Image RenderTest::draw(const SceneView& view, int width, int height) {
    std::string error;
    auto image = renderer->renderImage(view, width, height, &error);
    EXPECT_TRUE(image) << error;
    return image ? std::move(*image) : Image();
}

std::vector<std::uint8_t> Target::draw(Renderer& renderer, const SceneView& view) {
    std::string error;
    EXPECT_TRUE(renderer.render(view, framebuffer_.id(), width_, height_, &error)) << error;
    return framebuffer_.pixels();
}

Rgba pixelAt(const Image& image, int x, int y) {
    const std::uint8_t* p = image.pixel(x, y);
    return {p[0], p[1], p[2], p[3]};
}

Rgba pixelUnder(const Image& image, double viewX, double viewY) {
    return pixelAt(image, static_cast<int>(viewX), image.height - 1 - static_cast<int>(viewY));
}

Image solidImage(int width, int height, std::array<int, 4> rgba) {
    Image image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c)
                image.pixel(x, y)[c] = static_cast<std::uint8_t>(rgba[static_cast<std::size_t>(c)]);
    return image;
}

double silhouetteRadius(double r, double distance, int height) {
    const double focal = 1.0 / std::tan(22.5 * std::numbers::pi / 180.0);
    return std::tan(std::asin(r / distance)) * focal * height / 2.0;
}

} // namespace orrery::testing
