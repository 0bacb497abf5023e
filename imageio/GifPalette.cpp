#include "imageio/GifPalette.h"

#include <libimagequant.h>

#include <algorithm>
#include <memory>

namespace orrery::imageio {
namespace {

struct LiqDeleter {
    void operator()(liq_attr* p) const { liq_attr_destroy(p); }
    void operator()(liq_image* p) const { liq_image_destroy(p); }
    void operator()(liq_result* p) const { liq_result_destroy(p); }
};
template <typename T> using LiqPtr = std::unique_ptr<T, LiqDeleter>;

// GIF has one bit of transparency: alpha 0 stays transparent, anything else becomes opaque
// in its straight colour. Quantising this copy keeps libimagequant from spending palette
// entries on alpha levels that the file cannot hold.
std::vector<std::uint8_t> binaryAlphaCopy(const Image& image, bool& anyTransparent) {
    std::vector<std::uint8_t> pixels = image.pixels;
    anyTransparent = false;
    for (std::size_t i = 0; i < pixels.size(); i += 4) {
        if (pixels[i + 3] == 0) {
            std::fill_n(pixels.begin() + static_cast<std::ptrdiff_t>(i), 4, std::uint8_t{0});
            anyTransparent = true;
        } else {
            pixels[i + 3] = 255;
        }
    }
    return pixels;
}

bool isTransparentEntry(const liq_color& c) {
    return c.a < 128;
}

unsigned distance(const liq_color& entry, const std::uint8_t* pixel) {
    const int dr = entry.r - pixel[0];
    const int dg = entry.g - pixel[1];
    const int db = entry.b - pixel[2];
    return static_cast<unsigned>(dr * dr + dg * dg + db * db);
}

// Dithering may in principle land an opaque pixel on a transparent entry; it then takes
// the nearest opaque colour instead of vanishing.
std::uint8_t nearestOpaque(const liq_palette& palette, const std::uint8_t* pixel) {
    std::uint8_t best = 0;
    unsigned bestDistance = ~0u;
    for (unsigned i = 0; i < palette.count; ++i) {
        if (isTransparentEntry(palette.entries[i]))
            continue;
        const unsigned d = distance(palette.entries[i], pixel);
        if (d < bestDistance) {
            bestDistance = d;
            best = static_cast<std::uint8_t>(i);
        }
    }
    return best;
}

// Every pixel of alpha 0 takes one transparent index (the quantiser's own transparent
// entry, or one added after its colours); no other pixel may land on a transparent entry.
void settleTransparency(const liq_palette& palette, const std::vector<std::uint8_t>& pixels,
                        IndexedImage& indexed) {
    const liq_color* begin = palette.entries;
    const liq_color* found = std::find_if(begin, begin + palette.count, isTransparentEntry);
    if (found != begin + palette.count) {
        indexed.transparentIndex = static_cast<std::uint8_t>(found - begin);
    } else {
        indexed.transparentIndex = static_cast<std::uint8_t>(indexed.palette.size());
        indexed.palette.push_back({});
    }
    for (std::size_t i = 0; i < indexed.indices.size(); ++i) {
        const std::uint8_t* pixel = pixels.data() + i * 4;
        std::uint8_t& index = indexed.indices[i];
        if (pixel[3] == 0)
            index = *indexed.transparentIndex;
        else if (index >= palette.count || isTransparentEntry(palette.entries[index]))
            index = nearestOpaque(palette, pixel);
    }
}

} // namespace

std::optional<IndexedImage> quantizeForGif(const Image& image, std::string& error, int speed) {
    bool anyTransparent = false;
    const std::vector<std::uint8_t> pixels = binaryAlphaCopy(image, anyTransparent);

    LiqPtr<liq_attr> attr(liq_attr_create());
    if (!attr) {
        error = "the colour quantiser could not start";
        return std::nullopt;
    }
    liq_set_speed(attr.get(), speed);
    // Leave room to add a transparent entry ourselves should the quantiser not make one.
    liq_set_max_colors(attr.get(), anyTransparent ? 255 : 256);
    LiqPtr<liq_image> input(
        liq_image_create_rgba(attr.get(), pixels.data(), image.width, image.height, 0));
    liq_result* rawResult = nullptr;
    if (!input || liq_image_quantize(input.get(), attr.get(), &rawResult) != LIQ_OK || !rawResult) {
        error = "the colours could not be reduced to a palette";
        return std::nullopt;
    }
    LiqPtr<liq_result> result(rawResult);
    liq_set_dithering_level(result.get(), 1.0f);

    IndexedImage indexed;
    indexed.indices.resize(static_cast<std::size_t>(image.width) *
                           static_cast<std::size_t>(image.height));
    if (liq_write_remapped_image(result.get(), input.get(), indexed.indices.data(),
                                 indexed.indices.size()) != LIQ_OK) {
        error = "the picture could not be mapped to its palette";
        return std::nullopt;
    }
    const liq_palette& palette = *liq_get_palette(result.get());
    for (unsigned i = 0; i < palette.count; ++i)
        indexed.palette.push_back(
            {palette.entries[i].r, palette.entries[i].g, palette.entries[i].b});
    if (anyTransparent)
        settleTransparency(palette, pixels, indexed);
    return indexed;
}

} // namespace orrery::imageio
