#include "imageio/QtImageEncoder.h"

#include "imageio/QtImageWrap.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>
#include <cmath>

namespace orrery::imageio {
namespace {

const char* qtFormatName(ExportFormat format) {
    switch (format) {
    case ExportFormat::bmp:
        return "bmp";
    case ExportFormat::jpeg:
        return "jpeg";
    case ExportFormat::png:
        return "png";
    case ExportFormat::tiff:
        return "tiff";
    case ExportFormat::gif:
    case ExportFormat::jpeg2000:
        break;
    }
    return nullptr;
}

} // namespace

bool writtenByQt(ExportFormat format) {
    return qtFormatName(format) != nullptr;
}

std::string writeWithQt(const Image& image, ExportFormat format, float compression,
                        QIODevice& device, const std::vector<PictureText>& texts) {
    const char* name = qtFormatName(format);
    if (name == nullptr)
        return "this format is not written by Qt";
    if (image.isNull())
        return "the picture is empty";
    QImageWriter writer(&device, name);
    if (format == ExportFormat::jpeg)
        writer.setQuality(static_cast<int>(std::lround(std::clamp(compression, 0.0f, 1.0f) * 100)));
    if (format == ExportFormat::tiff)
        writer.setCompression(1); // LZW: lossless, and a quarter of the raw size for a scene
    // Qt's writers take the image's own texts as they are; QImageWriter::setText would
    // fold the white space inside them.
    QImage picture = wrapImage(image);
    for (const PictureText& field : texts)
        picture.setText(QString::fromStdString(field.key), QString::fromStdString(field.value));
    if (!writer.write(picture))
        return writer.errorString().toStdString();
    return {};
}

EncodedImage encodeWithQt(const Image& image, ExportFormat format, float compression,
                          const std::vector<PictureText>& texts) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (std::string failure = writeWithQt(image, format, compression, buffer, texts);
        !failure.empty())
        return EncodedImage::failure(std::move(failure));
    return {{bytes.begin(), bytes.end()}, {}};
}

} // namespace orrery::imageio
