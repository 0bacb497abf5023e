#include "imageio/QtImageWrap.h"

#include <cstring>

namespace orrery::imageio {

QImage wrapImage(const Image& image) {
    return QImage(image.pixels.data(), image.width, image.height,
                  static_cast<qsizetype>(image.stride()), QImage::Format_RGBA8888);
}

std::optional<Image> imageFromQImage(const QImage& source) {
    if (source.isNull())
        return std::nullopt;
    const QImage rgba = source.convertToFormat(QImage::Format_RGBA8888);
    Image image(rgba.width(), rgba.height());
    for (int y = 0; y < image.height; ++y)
        std::memcpy(image.pixel(0, y), rgba.constScanLine(y), image.stride());
    return image;
}

} // namespace orrery::imageio
