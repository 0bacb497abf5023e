#include "core/app/DocumentArea.h"

#include "core/model/TextNumber.h"

#include <algorithm>
#include <cmath>

namespace orrery {

SideCheck checkDocumentSide(std::string_view text, DocumentAxis axis) {
    if (!isInteger(text))
        return SideCheck::notWhole;
    const std::int64_t value = integerValue(text);
    const bool wide = axis == DocumentAxis::width;
    const int low = wide ? kDocumentWidthMin : kDocumentHeightMin;
    const int high = wide ? kDocumentWidthMax : kDocumentHeightMax;
    return value >= low && value <= high ? SideCheck::valid : SideCheck::outOfRange;
}

PixelSize windowSizeForDocument(PixelSize document) {
    return {document.width + kDocumentFrame + kWindowExtraWidth,
            document.height + kDocumentFrame + kWindowExtraHeight};
}

PixelSize documentSizeForWindow(PixelSize window) {
    return {window.width - kDocumentFrame - kWindowExtraWidth,
            window.height - kDocumentFrame - kWindowExtraHeight};
}

DocumentFit fitDocument(PixelSize document, PixelSize area) {
    if (document.width <= 0 || document.height <= 0)
        return {0, 0, area, 100};
    const double scale = std::min({1.0, static_cast<double>(area.width) / document.width,
                                   static_cast<double>(area.height) / document.height});
    const PixelSize shown{std::max(1, static_cast<int>(std::lround(document.width * scale))),
                          std::max(1, static_cast<int>(std::lround(document.height * scale)))};
    // Never 0 %: a huge document in a small window still says that it is shown.
    const int percent = std::max(1, static_cast<int>(std::floor(scale * 100.0)));
    return {(area.width - shown.width) / 2, (area.height - shown.height) / 2, shown, percent};
}

PixelSize minimumWindowSize() {
    return windowSizeForDocument({kDocumentWidthMin, kDocumentHeightMin});
}

PixelSize maximumWindowSize() {
    return windowSizeForDocument({kDocumentWidthMax, kDocumentHeightMax});
}

} // namespace orrery
