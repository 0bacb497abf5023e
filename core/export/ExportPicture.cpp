#include "core/export/ExportPicture.h"

#include "core/styles/StyleImages.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

namespace orrery {
namespace {

std::uint8_t toByte(double component) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(component, 0.0, 1.0) * 255.0));
}

} // namespace

Image overImage3(Image picture, Color background) {
    Image result = std::move(picture);
    if (result.isNull())
        return result;
    const std::uint8_t under[4] = {toByte(background.red), toByte(background.green),
                                   toByte(background.blue), toByte(background.alpha)};
    for (std::size_t i = 0; i < result.pixels.size(); i += 4) {
        std::uint8_t* p = result.pixels.data() + i;
        const unsigned alpha = p[3];
        if (alpha == 255)
            continue;
        if (alpha == 0) { // most of a scene is empty space
            std::copy(std::begin(under), std::end(under), p);
            continue;
        }
        // The colour shows through by the share the picture leaves uncovered; dividing by
        // the resulting alpha keeps the colours straight (not premultiplied), which also
        // holds for a translucent colour under the picture.
        const unsigned underWeight = (under[3] * (255 - alpha) + 127) / 255;
        const unsigned outAlpha = alpha + underWeight;
        for (int c = 0; c < 3; ++c)
            p[c] = static_cast<std::uint8_t>(
                (p[c] * alpha + under[c] * underWeight + outAlpha / 2) / outAlpha);
        p[3] = static_cast<std::uint8_t>(outAlpha);
    }
    return result;
}

Image exportPicture(Image scene, long currentBackground, bool includeBackground) {
    const std::optional<Color> colour =
        includeBackground ? exportBackgroundColor(currentBackground) : std::nullopt;
    if (!colour)
        return scene;
    return overImage3(std::move(scene), *colour);
}

Image exportAnimationFrame(Image scene, long currentBackground, bool includeBackground,
                           bool keepsAlpha) {
    Image picture =
        exportPicture(std::move(scene), currentBackground, includeBackground || !keepsAlpha);
    if (keepsAlpha)
        return picture;
    return overImage3(std::move(picture), Color{0.0, 0.0, 0.0, 1.0});
}

} // namespace orrery
