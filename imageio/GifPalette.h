#pragma once

#include "core/styles/Image.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orrery::imageio {

struct PaletteColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

// A picture reduced to a palette of at most 256 colours: one index per pixel, rows top
// first, and the index that stands for fully transparent pixels, if there are any.
struct IndexedImage {
    std::vector<PaletteColor> palette;
    std::vector<std::uint8_t> indices;
    std::optional<std::uint8_t> transparentIndex;
};

// libimagequant's speed from 1 (slowest, best) to 10: a still picture takes the library's own
// default; the frames of an animation, each seen for a moment, a quicker search.
inline constexpr int kStillQuantizeSpeed = 4;
inline constexpr int kFrameQuantizeSpeed = 10;

// Quantises with libimagequant (alpha-aware, dithered). Fails with a reason only when the
// library does.
std::optional<IndexedImage> quantizeForGif(const Image& image, std::string& error,
                                           int speed = kStillQuantizeSpeed);

// One palette for every frame of a loop, so that no colour flickers from frame to frame: the
// colours of all frames are counted first (add), then each frame is mapped to the palette
// they give (remap), which is chosen at the first remap.
class LoopPalette {
public:
    explicit LoopPalette(int speed);
    ~LoopPalette();
    LoopPalette(const LoopPalette&) = delete;
    LoopPalette& operator=(const LoopPalette&) = delete;

    // An empty text, or why the frame's colours could not be counted.
    std::string add(const Image& frame);
    std::optional<IndexedImage> remap(const Image& frame, std::string& error);

    struct State;

private:
    std::unique_ptr<State> state_;
};

} // namespace orrery::imageio
