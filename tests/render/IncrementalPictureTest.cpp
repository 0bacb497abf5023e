#include "RenderTestSupport.h"

#include <functional>
#include <random>

namespace orrery::testing {
namespace {

using IncrementalPicture = RenderTest;

constexpr int kWidth = 480;
constexpr int kHeight = 320;
constexpr Color kBlue{0.2, 0.4, 0.9, 1.0};

// Planets strewn in front of the camera: plain, coloured, with gradients, with surfaces
// (Surface004 has no image), far and near, small and large; "twin" and "twin2" share a place.
void strewPlanets(SceneView& view) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> across(-1.0, 1.0);
    std::uniform_real_distribution<double> depth(-900.0, 300.0);
    std::uniform_real_distribution<double> size(2.0, 30.0);
    for (int i = 0; i < 300; ++i) {
        const double z = depth(random);
        const double reach = (500.0 - z) * 0.45;
        view.createPlanet2(std::to_string(i), kBlue, i % 3 == 0 ? 0 : 1 + i % 40, i % 5,
                           std::to_string(across(random) * reach * 1.5),
                           std::to_string(across(random) * reach), std::to_string(z),
                           std::to_string(size(random)));
    }
    view.createPlanet2("twin", kBlue, 3, 3, "40", "10", "0", "20");
    view.createPlanet2("twin2", {1, 0, 0, 1}, 0, 3, "40", "10", "0", "20");
}

// The renderer draws again only where planets changed: each picture after a change must be
// exactly the one that a renderer which has drawn nothing before makes of the scene.
TEST_F(IncrementalPicture, AfterEachChangeThePictureIsTheOneDrawnAfresh) {
    surfaces["Surface001"] = solidImage(64, 32, {0, 90, 0, 255});
    surfaces["Surface002"] = solidImage(64, 32, {90, 0, 0, 255});
    surfaces["Surface003"] = solidImage(64, 32, {0, 0, 90, 255});
    SceneView view;
    view.setViewSize(kWidth, kHeight);
    strewPlanets(view);
    draw(view, kWidth, kHeight);

    const auto drag = [&view](const std::string& tsecs, double dx, double dy) {
        const auto planet = view.scene().rootNode().childNodesNamed("planet" + tsecs).front();
        const Vec3 at = view.projectPoint(planet->position());
        view.mouseDown({at.x, at.y});
        view.mouseDragged({at.x + dx, at.y + dy});
        view.mouseUp();
    };
    const std::function<void()> changes[] = {
        [&] { drag("7", 30, -12); },
        [&] { drag("twin", 0, 0); },  // stays on its twin, drawn in scene order
        [&] { drag("twin2", 6, 3); }, // half over its twin
        [&] { view.updateStatus("12", 0); },
        [&] { view.updateStatus("12", 1); },
        [&] {
            view.updatePlanet("20", {1, 1, 0, 0.5}, 0, 1, "-30", "20", "100", "12");
        },
        [&] { view.updatePlanet("twin", kBlue, 3, 3, "40", "10", "0", "20"); }, // now after twin2
        [&] { view.updatePlanet("21", kBlue, 9, 2, "0", "0", "300", "40"); },   // a large quad
        [&] { view.deletePlanet("30"); },
        [&] { view.createPlanet2("new", kBlue, 5, 4, "-60", "-30", "50", "15"); },
        [&] {
            drag("7", -20, 5);
            view.updateStatus("8", 0);
        },
        [&] { view.updateLight("100", "0", "300"); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        changes[i]();
        const Image patched = draw(view, kWidth, kHeight);
        std::string error;
        const auto fresh = Renderer::create(
            [this](const std::string& name) -> std::optional<Image> {
                const auto found = surfaces.find(name);
                return found == surfaces.end() ? std::nullopt : std::optional(found->second);
            },
            &error);
        ASSERT_TRUE(fresh) << error;
        const auto afresh = fresh->renderImage(view, kWidth, kHeight, &error);
        ASSERT_TRUE(afresh) << error;
        std::size_t differing = 0;
        for (std::size_t b = 0; b < patched.pixels.size(); ++b)
            differing += patched.pixels[b] != afresh->pixels[b] ? 1 : 0;
        EXPECT_EQ(differing, 0u) << "change " << i;
    }
}

} // namespace
} // namespace orrery::testing
