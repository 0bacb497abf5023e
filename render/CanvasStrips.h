#pragma once

#include "render/PlanetUniforms.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace orrery::render {

// A large redraw of the window's canvas spread over several frames, a strip of rows each, so
// that the window answers between them. Drawn one after another, the strips give the very
// canvas that one pass would: each is a part of the canvas drawn again, as the part where a
// planet changed is.
class CanvasStrips {
public:
    // About how many planets one frame draws; 0 (the start): every redraw in one frame.
    void setPlanetsPerFrame(std::size_t planets) { planetsPerFrame_ = planets; }

    // Queues `area` as strips, the top one first, when drawing it at once would draw more
    // than a frame's planets (taking the `planets` of the canvas, `height` rows high, to be
    // spread evenly over its rows); false, with nothing queued, when it is drawn at once.
    bool split(const PixelRect& area, std::size_t planets, int height);
    // Takes the next strip to draw; none when all are drawn.
    std::optional<PixelRect> next();
    bool empty() const { return strips_.empty(); }
    void clear() { strips_.clear(); }

private:
    std::size_t planetsPerFrame_ = 0;
    std::deque<PixelRect> strips_;
};

} // namespace orrery::render
