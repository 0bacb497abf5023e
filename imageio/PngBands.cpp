#include "imageio/PngBands.h"

#include <zlib.h>

#include <array>
#include <string_view>

namespace orrery::imageio {
namespace {

constexpr std::uint8_t kSubFilter = 1;
constexpr int kBytesPerPixel = 4;

void putBigEndian(std::vector<std::uint8_t>& out, std::uint32_t value) {
    for (const int shift : {24, 16, 8, 0})
        out.push_back(static_cast<std::uint8_t>(value >> shift));
}

// A chunk: its length, type, data and the CRC of type and data.
void putChunk(std::vector<std::uint8_t>& out, std::string_view type,
              const std::vector<std::uint8_t>& data) {
    putBigEndian(out, static_cast<std::uint32_t>(data.size()));
    const std::size_t typeAt = out.size();
    out.insert(out.end(), type.begin(), type.end());
    out.insert(out.end(), data.begin(), data.end());
    const uLong crc = crc32(0L, out.data() + typeAt, static_cast<uInt>(out.size() - typeAt));
    putBigEndian(out, static_cast<std::uint32_t>(crc));
}

// One row as its filter byte and each byte less the same byte of the pixel to its left.
void subFilter(const std::uint8_t* row, std::size_t stride, std::uint8_t* out) {
    out[0] = kSubFilter;
    for (std::size_t i = 0; i < stride; ++i)
        out[i + 1] =
            static_cast<std::uint8_t>(row[i] - (i >= kBytesPerPixel ? row[i - kBytesPerPixel] : 0));
}

// Feeds deflate one filtered row at a time, so that nothing of the band's size but its
// compressed bytes is ever allocated: frames come many a second on several threads, and
// fresh large buffers cost more in page faults than the filtering itself.
class BandDeflater {
public:
    explicit BandDeflater(PngEffort effort) {
        const int level = effort == PngEffort::fastest ? Z_BEST_SPEED : Z_DEFAULT_COMPRESSION;
        ok_ = deflateInit2(&stream_, level, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) == Z_OK;
    }
    ~BandDeflater() {
        if (ok_)
            deflateEnd(&stream_);
    }
    BandDeflater(const BandDeflater&) = delete;
    BandDeflater& operator=(const BandDeflater&) = delete;

    // Compresses the bytes into `out`; the last of the band ends on a byte boundary (a sync
    // flush) or, for the picture's last band, closes the stream.
    bool add(std::uint8_t* data, std::size_t size, int flush, std::vector<std::uint8_t>& out) {
        if (!ok_)
            return false;
        stream_.next_in = data;
        stream_.avail_in = static_cast<uInt>(size);
        int status = Z_OK;
        do {
            std::array<std::uint8_t, 65536> buffer;
            stream_.next_out = buffer.data();
            stream_.avail_out = static_cast<uInt>(buffer.size());
            status = deflate(&stream_, flush);
            out.insert(out.end(), buffer.data(), stream_.next_out);
        } while (status == Z_OK && stream_.avail_out == 0);
        return flush == Z_FINISH ? status == Z_STREAM_END : status == Z_OK || status == Z_BUF_ERROR;
    }

private:
    z_stream stream_{};
    bool ok_ = false;
};

} // namespace

std::vector<std::uint8_t> pngStart(int width, int height) {
    std::vector<std::uint8_t> out = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    std::vector<std::uint8_t> header;
    putBigEndian(header, static_cast<std::uint32_t>(width));
    putBigEndian(header, static_cast<std::uint32_t>(height));
    header.insert(header.end(), {8 /* bits */, 6 /* RGBA */, 0, 0, 0 /* not interlaced */});
    putChunk(out, "IHDR", header);
    // The zlib header: deflate with a 32 KiB window (its level field is only a hint).
    putChunk(out, "IDAT", {0x78, 0x01});
    return out;
}

PngBand compressPngBand(const Image& rows, bool last, PngEffort effort) {
    const std::size_t stride = rows.stride();
    std::vector<std::uint8_t> filtered(stride + 1);
    std::vector<std::uint8_t> compressed;
    BandDeflater deflater(effort);
    PngBand band;
    for (int y = 0; y < rows.height; ++y) {
        subFilter(rows.pixel(0, y), stride, filtered.data());
        band.adler = static_cast<std::uint32_t>(
            adler32(band.adler, filtered.data(), static_cast<uInt>(filtered.size())));
        band.length += filtered.size();
        const int flush = y + 1 < rows.height ? Z_NO_FLUSH : last ? Z_FINISH : Z_SYNC_FLUSH;
        if (!deflater.add(filtered.data(), filtered.size(), flush, compressed))
            return {};
    }
    putChunk(band.chunk, "IDAT", compressed);
    return band;
}

void PngEnd::add(const PngBand& band) {
    adler_ = static_cast<std::uint32_t>(
        adler32_combine(adler_, band.adler, static_cast<z_off_t>(band.length)));
}

std::vector<std::uint8_t> PngEnd::bytes() const {
    std::vector<std::uint8_t> checksum;
    putBigEndian(checksum, adler_);
    std::vector<std::uint8_t> out;
    putChunk(out, "IDAT", checksum);
    putChunk(out, "IEND", {});
    return out;
}

EncodedImage encodeFastPng(const Image& image) {
    if (image.isNull())
        return EncodedImage::failure("the picture is empty");
    const PngBand band = compressPngBand(image, true, PngEffort::fastest);
    if (band.chunk.empty())
        return EncodedImage::failure("the picture could not be compressed");
    EncodedImage encoded{pngStart(image.width, image.height), {}};
    encoded.bytes.insert(encoded.bytes.end(), band.chunk.begin(), band.chunk.end());
    PngEnd end;
    end.add(band);
    const std::vector<std::uint8_t> tail = end.bytes();
    encoded.bytes.insert(encoded.bytes.end(), tail.begin(), tail.end());
    return encoded;
}

} // namespace orrery::imageio
