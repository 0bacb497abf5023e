#include "RenderTestSupport.h"

#include <algorithm>
#include <functional>
#include <random>

namespace orrery::testing {
namespace {

class IncrementalPicture : public RenderTest {
protected:
    // The picture that a renderer which has drawn nothing before makes of the scene.
    Image drawnAfresh(const SceneView& view, int width, int height) {
        std::string error;
        const auto fresh = Renderer::create(
            [this](const std::string& name) -> std::optional<Image> {
                const auto found = surfaces.find(name);
                return found == surfaces.end() ? std::nullopt : std::optional(found->second);
            },
            &error);
        EXPECT_TRUE(fresh) << error;
        std::optional<Image> picture =
            fresh ? fresh->renderImage(view, width, height, &error) : std::nullopt;
        EXPECT_TRUE(picture) << error;
        return picture ? std::move(*picture) : Image();
    }

    void useSurfaces() {
        surfaces["Surface001"] = solidImage(64, 32, {0, 90, 0, 255});
        surfaces["Surface002"] = solidImage(64, 32, {90, 0, 0, 255});
        surfaces["Surface003"] = solidImage(64, 32, {0, 0, 90, 255});
    }
};

std::size_t differingBytes(const Image& a, const Image& b) {
    std::size_t differing = a.pixels.size() == b.pixels.size() ? 0 : 1;
    for (std::size_t i = 0; i < std::min(a.pixels.size(), b.pixels.size()); ++i)
        differing += a.pixels[i] != b.pixels[i] ? 1 : 0;
    return differing;
}

// A frame read from a framebuffer, bottom row first, as a picture, top row first.
Image pictureOf(const std::vector<std::uint8_t>& frame, int width, int height) {
    Image picture(width, height);
    for (int row = 0; row < height; ++row)
        std::copy_n(frame.begin() + static_cast<std::ptrdiff_t>(height - 1 - row) * width * 4,
                    width * 4, picture.pixel(0, row));
    return picture;
}

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
    useSurfaces();
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
        EXPECT_EQ(differingBytes(patched, drawnAfresh(view, kWidth, kHeight)), 0u)
            << "change " << i;
    }
}

// The window spreads a large redraw over several frames, a strip each. Once the last strip is
// drawn the frame is exactly the picture drawn at once, though a planet moved while strips
// were left; and a light change meanwhile starts the strips over. A new view of the scene is
// taken in over several frames too, and starts over when the scene changes meanwhile.
TEST_F(IncrementalPicture, ARedrawSpreadOverFramesEndsInThePictureDrawnAtOnce) {
    useSurfaces();
    SceneView view;
    view.setViewSize(kWidth, kHeight);
    strewPlanets(view);
    renderer->spreadRedraws(40);
    Target target(kWidth, kHeight);
    const auto finish = [&] {
        std::vector<std::uint8_t> frame;
        int frames = 0;
        do
            frame = target.draw(*renderer, view);
        while (renderer->drawsMore() && ++frames < 100);
        return frames;
    };

    target.draw(*renderer, view);
    target.draw(*renderer, view);
    EXPECT_TRUE(renderer->drawsMore());
    view.updatePlanet("20", {1, 1, 0, 0.5}, 0, 1, "-30", "20", "100", "12");
    EXPECT_GT(finish(), 2);
    EXPECT_EQ(differingBytes(pictureOf(target.draw(*renderer, view), kWidth, kHeight),
                             drawnAfresh(view, kWidth, kHeight)),
              0u);

    view.updateLight("100", "0", "300");
    target.draw(*renderer, view);
    EXPECT_TRUE(renderer->drawsMore());
    target.draw(*renderer, view);
    view.updateLight("-100", "50", "200");
    finish();
    EXPECT_EQ(differingBytes(pictureOf(target.draw(*renderer, view), kWidth, kHeight),
                             drawnAfresh(view, kWidth, kHeight)),
              0u);

    view.updateCamera(45, 45, 0, 0, 560, true, true);
    target.draw(*renderer, view);
    EXPECT_TRUE(renderer->drawsMore());
    view.updatePlanet("3", {1, 0, 0, 1}, 0, 1, "10", "-20", "200", "25");
    finish();
    EXPECT_EQ(differingBytes(pictureOf(target.draw(*renderer, view), kWidth, kHeight),
                             drawnAfresh(view, kWidth, kHeight)),
              0u);
}

} // namespace
} // namespace orrery::testing
