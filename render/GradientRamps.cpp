#include "render/GradientRamps.h"

#include "core/scene/PlanetNodes.h"
#include "core/styles/GradientLibrary.h"
#include "core/styles/StyleImages.h"

#include <algorithm>

namespace orrery::render {

std::vector<std::uint8_t> gradientRampPixels() {
    const std::size_t rowBytes = static_cast<std::size_t>(kGradientRampLength) * 4;
    std::vector<std::uint8_t> pixels(rowBytes * kGradientRampCount, 0);
    const gradientLibrary library;
    for (int style = 0; style < kGradientRampCount; ++style) {
        // A one pixel wide image at the planet texture's angle is exactly one column of it.
        const Image column =
            makeGradientImage(library.getGradient(style), 1.0, kGradientRampLength, kGradientAngle);
        if (column.isNull())
            continue;
        std::copy(column.pixels.begin(), column.pixels.end(),
                  pixels.begin() + static_cast<std::ptrdiff_t>(rowBytes * style));
    }
    return pixels;
}

int gradientRampRow(std::int64_t style) {
    return style >= 0 && style < kGradientRampCount ? static_cast<int>(style) : -1;
}

} // namespace orrery::render
