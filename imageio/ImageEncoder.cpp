#include "imageio/ImageEncoder.h"

#include "imageio/GifEncoder.h"
#include "imageio/Jpeg2000Encoder.h"
#include "imageio/QtImageEncoder.h"

namespace orrery::imageio {

EncodedImage encodeImage(const Image& image, ExportFormat format, float compression) {
    switch (format) {
    case ExportFormat::gif:
        return encodeGif(image);
    case ExportFormat::jpeg2000:
        return encodeJpeg2000(image, compression);
    case ExportFormat::bmp:
    case ExportFormat::jpeg:
    case ExportFormat::png:
    case ExportFormat::tiff:
        break;
    }
    return encodeWithQt(image, format, compression);
}

} // namespace orrery::imageio
