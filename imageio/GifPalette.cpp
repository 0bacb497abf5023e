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
    void operator()(liq_histogram* p) const { liq_histogram_destroy(p); }
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

// The picture's pixels (already of binary alpha) as indices into the result's palette, the
// pixels of alpha 0 on its transparent entry.
std::optional<IndexedImage> remapped(liq_result* result, liq_image* input,
                                     const std::vector<std::uint8_t>& pixels, bool anyTransparent,
                                     std::size_t pixelCount, std::string& error) {
    liq_set_dithering_level(result, 1.0f);
    IndexedImage indexed;
    indexed.indices.resize(pixelCount);
    if (liq_write_remapped_image(result, input, indexed.indices.data(), indexed.indices.size()) !=
        LIQ_OK) {
        error = "the picture could not be mapped to its palette";
        return std::nullopt;
    }
    const liq_palette& palette = *liq_get_palette(result);
    for (unsigned i = 0; i < palette.count; ++i)
        indexed.palette.push_back(
            {palette.entries[i].r, palette.entries[i].g, palette.entries[i].b});
    if (anyTransparent)
        settleTransparency(palette, pixels, indexed);
    return indexed;
}

std::size_t pixelCount(const Image& image) {
    return static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height);
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

    return remapped(result.get(), input.get(), pixels, anyTransparent, pixelCount(image), error);
}

struct LoopPalette::State {
    LiqPtr<liq_attr> attr{liq_attr_create()};
    LiqPtr<liq_histogram> histogram;
    LiqPtr<liq_result> result;
    std::vector<liq_color> colours; // the loop's palette in the order every frame writes it
    bool anyTransparent = false;
};

namespace {

// The palette the loop's colours give, as fixed colours of a result of its own: a remap may
// refine a quantised palette towards the picture it maps, and fixed colours it leaves alone,
// so every frame gets the very same palette.
bool chooseFixedPalette(LoopPalette::State& state) {
    liq_result* chosen = nullptr;
    if (!state.histogram ||
        liq_histogram_quantize(state.histogram.get(), state.attr.get(), &chosen) != LIQ_OK ||
        !chosen)
        return false;
    LiqPtr<liq_result> quantized(chosen);
    const liq_palette& palette = *liq_get_palette(quantized.get());
    LiqPtr<liq_histogram> fixed(liq_histogram_create(state.attr.get()));
    if (!fixed)
        return false;
    for (unsigned i = 0; i < palette.count; ++i)
        if (liq_histogram_add_fixed_color(fixed.get(), palette.entries[i], 0.0) != LIQ_OK)
            return false;
    // The library quantises no histogram without a picture in it: one pixel of the first colour.
    const liq_color& first = palette.entries[0];
    std::uint8_t pixel[4] = {first.r, first.g, first.b, first.a};
    LiqPtr<liq_image> dot(liq_image_create_rgba(state.attr.get(), pixel, 1, 1, 0));
    if (palette.count == 0 || !dot ||
        liq_histogram_add_image(fixed.get(), state.attr.get(), dot.get()) != LIQ_OK)
        return false;
    liq_result* result = nullptr;
    if (liq_histogram_quantize(fixed.get(), state.attr.get(), &result) != LIQ_OK || !result)
        return false;
    state.result.reset(result);
    state.colours.assign(palette.entries, palette.entries + palette.count);
    return true;
}

bool sameColour(const liq_color& a, const liq_color& b) {
    return a.r == b.r && a.g == b.g && a.b == b.b && a.a == b.a;
}

// A remap sorts the palette anew for each picture; this puts the frame's indices back into
// the loop's own order, so that every frame carries the same colour table.
void inLoopOrder(const liq_palette& sorted, const std::vector<liq_color>& colours,
                 IndexedImage& indexed) {
    std::vector<std::uint8_t> order(indexed.palette.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto at =
            i < sorted.count
                ? std::find_if(colours.begin(), colours.end(),
                               [&](const liq_color& c) { return sameColour(c, sorted.entries[i]); })
                : colours.end();
        // An entry the frame added (a transparent one) goes after the loop's colours.
        order[i] =
            static_cast<std::uint8_t>(at != colours.end() ? at - colours.begin() : colours.size());
    }
    for (std::uint8_t& index : indexed.indices)
        index = order[index];
    if (indexed.transparentIndex)
        indexed.transparentIndex = order[*indexed.transparentIndex];
    indexed.palette.clear();
    for (const liq_color& c : colours)
        indexed.palette.push_back({c.r, c.g, c.b});
    if (indexed.transparentIndex == colours.size())
        indexed.palette.push_back({});
}

} // namespace

LoopPalette::LoopPalette(int speed) : state_(std::make_unique<State>()) {
    if (!state_->attr)
        return;
    liq_set_speed(state_->attr.get(), speed);
    // Room for a transparent entry, should the frames have any and the quantiser not make one.
    liq_set_max_colors(state_->attr.get(), 255);
    state_->histogram.reset(liq_histogram_create(state_->attr.get()));
}

LoopPalette::~LoopPalette() = default;

std::string LoopPalette::add(const Image& frame) {
    bool anyTransparent = false;
    const std::vector<std::uint8_t> pixels = binaryAlphaCopy(frame, anyTransparent);
    state_->anyTransparent = state_->anyTransparent || anyTransparent;
    LiqPtr<liq_image> input(
        liq_image_create_rgba(state_->attr.get(), pixels.data(), frame.width, frame.height, 0));
    if (!state_->histogram || !input ||
        liq_histogram_add_image(state_->histogram.get(), state_->attr.get(), input.get()) != LIQ_OK)
        return "the colours of a frame could not be counted";
    return {};
}

std::optional<IndexedImage> LoopPalette::remap(const Image& frame, std::string& error) {
    if (!state_->result && !chooseFixedPalette(*state_)) {
        error = "the loop's colours could not be reduced to a palette";
        return std::nullopt;
    }
    bool anyTransparent = false;
    const std::vector<std::uint8_t> pixels = binaryAlphaCopy(frame, anyTransparent);
    LiqPtr<liq_image> input(
        liq_image_create_rgba(state_->attr.get(), pixels.data(), frame.width, frame.height, 0));
    if (!input) {
        error = "the picture could not be mapped to its palette";
        return std::nullopt;
    }
    // Every frame keeps the loop's transparent entry, even one without transparent pixels.
    std::optional<IndexedImage> indexed =
        remapped(state_->result.get(), input.get(), pixels,
                 state_->anyTransparent || anyTransparent, pixelCount(frame), error);
    if (indexed)
        inLoopOrder(*liq_get_palette(state_->result.get()), state_->colours, *indexed);
    return indexed;
}

} // namespace orrery::imageio
