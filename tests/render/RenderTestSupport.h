#pragma once

#include "core/scene/SceneView.h"
#include "core/styles/Image.h"
#include "render/HeadlessContext.h"
#include "render/Renderer.h"
#include "render/StandInFramebuffer.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orrery::testing {

struct Rgba {
    int r = 0, g = 0, b = 0, a = 0;
};

// A headless context and a renderer for each test. Without a context the test fails:
// a machine that cannot draw must not pass the picture tests by skipping them.
class RenderTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    Image draw(const SceneView& view, int width, int height);

    // Surface images the renderer can ask for by name.
    std::map<std::string, Image> surfaces;
    int surfaceRequests = 0;

    std::unique_ptr<HeadlessContext> context;
    std::unique_ptr<Renderer> renderer;
};

// A framebuffer standing in for the window's.
class Target {
public:
    Target(int width, int height) : framebuffer_(width, height), width_(width), height_(height) {}

    // The frame `renderer` draws of the view, bottom row first.
    std::vector<std::uint8_t> draw(Renderer& renderer, const SceneView& view);

private:
    render::StandInFramebuffer framebuffer_;
    int width_ = 0;
    int height_ = 0;
};

Rgba pixelAt(const Image& image, int x, int y); // y counts from the top row

// The pixel under a view point (view coordinates run up from the bottom-left).
Rgba pixelUnder(const Image& image, double viewX, double viewY);

// An image of one colour.
Image solidImage(int width, int height, std::array<int, 4> rgba);

// Radius in pixels of the silhouette of a sphere of radius r whose centre lies `distance`
// straight ahead, in a picture `height` pixels high (vertical field of view 45 degrees).
double silhouetteRadius(double r, double distance, int height);

} // namespace orrery::testing
