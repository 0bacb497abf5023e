#include "core/app/DocumentArea.h"

#include "core/model/TextNumber.h"

#include <algorithm>

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

PixelSize minimumWindowSize() {
    return windowSizeForDocument({kDocumentWidthMin, kDocumentHeightMin});
}

PixelSize maximumWindowSize() {
    return windowSizeForDocument({kDocumentWidthMax, kDocumentHeightMax});
}

} // namespace orrery
