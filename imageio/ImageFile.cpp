#include "imageio/ImageFile.h"

#include "imageio/AtomicWrite.h"
#include "imageio/ImageEncoder.h"
#include "imageio/Jpeg2000Decoder.h"
#include "imageio/QtImageEncoder.h"
#include "imageio/QtImageWrap.h"
#include "imageio/TiffDescription.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <span>

namespace orrery::imageio {
namespace {

// No picture this program reads comes near this; anything bigger is not a picture of ours.
constexpr qint64 kMaxFileSize = qint64{1} << 30;

} // namespace

std::string writeImageFile(const Image& image, const std::string& path, ExportFormat format,
                           float compression, const std::vector<PictureText>& texts) {
    // Qt's TIFF writer keeps no text: such a picture is encoded in memory and given its
    // description there. A TIFF has one description, which holds the first field.
    if (format == ExportFormat::tiff && !texts.empty()) {
        EncodedImage encoded = encodeWithQt(image, format, compression);
        if (!encoded.ok())
            return encoded.error;
        if (!setTiffDescription(encoded.bytes, texts.front().key + ": " + texts.front().value))
            return "the picture's description cannot be written";
        return writeFileAtomically(path, encoded.bytes);
    }
    // Qt's writers stream into the file: a poster is never held encoded in memory as well.
    if (writtenByQt(format))
        return writeFileAtomically(path, [&](QIODevice& file) {
            return writeWithQt(image, format, compression, file, texts);
        });
    const EncodedImage encoded = encodeImage(image, format, compression);
    if (!encoded.ok())
        return encoded.error;
    return writeFileAtomically(path, encoded.bytes);
}

std::optional<Image> readImageFile(const std::string& path, std::string& error) {
    QFile file(QString::fromStdString(path));
    if (QFileInfo(file).isDir()) {
        error = "a folder, not a picture";
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString().toStdString();
        return std::nullopt;
    }
    if (file.size() > kMaxFileSize) {
        error = "the file is too large for a picture";
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    const std::span<const std::uint8_t> data(
        reinterpret_cast<const std::uint8_t*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size()));
    // Qt has no JPEG 2000 reader; OpenJPEG reads what we write.
    if (looksLikeJpeg2000(data))
        return decodeJpeg2000(std::vector<std::uint8_t>(data.begin(), data.end()), error);

    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    std::optional<Image> image = imageFromQImage(reader.read());
    if (!image)
        error = "not a readable picture (" + reader.errorString().toStdString() + ")";
    return image;
}

} // namespace orrery::imageio
