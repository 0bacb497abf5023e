#include "RenderTestSupport.h"

#include <functional>

namespace orrery::testing {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 200;

Image stripes(int shift) {
    Image image(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            std::uint8_t* p = image.pixel(x, y);
            p[0] = static_cast<std::uint8_t>((x + shift) * 3);
            p[1] = static_cast<std::uint8_t>(y * 5);
            p[2] = 90;
            p[3] = (x / 16) % 2 == 0 ? 255 : 160;
        }
    return image;
}

using BackdropPicture = RenderTest;

// The window lays the planets over its backdrop as it finishes each frame: after every change,
// of the planets, the light or the backdrop itself, what it shows is what a renderer that
// has drawn nothing before shows of the same scene over the same backdrop; and where no
// planet is, the backdrop shows as it is.
TEST_F(BackdropPicture, EveryFrameIsTheOneDrawnAfresh) {
    SceneView view;
    view.setViewSize(kWidth, kHeight);
    view.createPlanet2("1", {0.2, 0.5, 0.9, 1.0}, 4, 0, "0", "0", "0", "40");
    view.createPlanet2("2", {0.9, 0.3, 0.1, 0.5}, 0, 0, "60", "20", "60", "20");
    Target target(kWidth, kHeight);
    Image backdrop = stripes(0);
    renderer->setBackdrop(backdrop);
    target.draw(*renderer, view);

    const std::function<void()> changes[] = {
        [&] {
            backdrop = stripes(7);
            renderer->setBackdrop(backdrop);
        },
        [&] {
            view.updatePlanet("2", {0.9, 0.3, 0.1, 0.5}, 0, 0, "70", "10", "60", "20");
        },
        [&] { view.updateLight("50", "50", "300"); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        changes[i]();
        const std::vector<std::uint8_t> shown = target.draw(*renderer, view);
        std::string error;
        const auto fresh = Renderer::create({}, &error);
        ASSERT_TRUE(fresh) << error;
        fresh->setBackdrop(backdrop);
        EXPECT_TRUE(target.draw(*fresh, view) == shown) << "change " << i;
        // The bottom-left corner holds no planet: the backdrop, its colour premultiplied.
        const std::uint8_t* under = backdrop.pixel(0, kHeight - 1);
        EXPECT_EQ(shown[3], under[3]);
        EXPECT_NEAR(shown[0], under[0] * under[3] / 255.0, 1.0);
    }
}

} // namespace
} // namespace orrery::testing
