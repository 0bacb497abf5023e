#include "imageio/QtImageWrap.h"

#include <cstring>

namespace orrery::imageio {

QImage wrapImage(const Image& image) {
    return QImage(image.pixels.data(), image.width, image.height,
                  static_cast<qsizetype>(image.stride()), QImage::Format_RGBA8888);
}

std::optional<Image> imageFromQImage(QImage source) {
    if (source.isNull())
        return std::nullopt;
    source.convertTo(QImage::Format_RGBA8888);
    Image image(source.width(), source.height());
    for (int y = 0; y < image.height; ++y)
        std::memcpy(image.pixel(0, y), source.constScanLine(y), image.stride());
    return image;
}

} // namespace orrery::imageio
