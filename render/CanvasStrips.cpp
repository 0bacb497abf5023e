#include "render/CanvasStrips.h"

#include <algorithm>

namespace orrery::render {
namespace {

// Thinner strips would cost more in passes than they spare.
constexpr int kFewestRows = 16;

} // namespace

bool CanvasStrips::split(const PixelRect& area, std::size_t planets, int height) {
    if (planetsPerFrame_ == 0 || planets == 0)
        return false;
    const double share = static_cast<double>(planetsPerFrame_) / static_cast<double>(planets);
    const int rows = std::max(kFewestRows, static_cast<int>(height * share));
    if (area.height <= rows)
        return false;
    for (int top = area.y + area.height; top > area.y; top -= rows) {
        const int bottom = std::max(area.y, top - rows);
        strips_.push_back({area.x, bottom, area.width, top - bottom});
    }
    return true;
}

std::optional<PixelRect> CanvasStrips::next() {
    if (strips_.empty())
        return std::nullopt;
    const PixelRect strip = strips_.front();
    strips_.pop_front();
    return strip;
}

} // namespace orrery::render
