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

GlObject makeGradientRampTexture(const std::vector<std::uint8_t>& pixels) {
    GlObject texture(GlObject::Kind::texture);
    texture.create();
    glBindTexture(GL_TEXTURE_2D, texture.id());
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_SRGB8_ALPHA8, kGradientRampLength, kGradientRampCount, 0,
                 GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    return texture;
}

} // namespace orrery::render
