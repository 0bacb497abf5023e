#include "core/edit/DocumentSettings.h"

#include "core/model/TextNumber.h"
#include "core/package/ProjectSettings.h"

namespace orrery {

std::optional<PixelSize> pictureSize(const DocumentSettings& settings) {
    if (!isPackageWidth(settings.width) || !isPackageHeight(settings.height))
        return std::nullopt;
    return PixelSize{static_cast<int>(integerValue(settings.width)),
                     static_cast<int>(integerValue(settings.height))};
}

} // namespace orrery
