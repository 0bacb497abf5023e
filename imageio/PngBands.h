#pragma once

#include "core/styles/Image.h"
#include "imageio/EncodedImage.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orrery::imageio {

// A PNG of 8-bit straight RGBA made for speed, built from bands of rows that are compressed
// each on its own, so that several can be compressed at once on other threads and written as
// they come, in order. Every row is filtered by its left neighbour (PNG's Sub filter), which
// needs no row above it; each band is deflated at zlib's fastest level and ends on a byte
// boundary, so the bands join into one stream. A rendered scene, smooth shading over empty
// space, loses little to a filter chosen row by row, and compresses several times faster.

// zlib's fastest level, for frames that come by the hundred; or its usual one, for a sprite
// sheet, whose side-by-side frames its longer search finds alike (often half the size, for
// twice the time).
enum class PngEffort { fastest, usual };

// The signature, the header and the start of the compressed stream.
std::vector<std::uint8_t> pngStart(int width, int height);

struct PngBand {
    std::vector<std::uint8_t> chunk; // an IDAT chunk of the band's compressed rows
    std::uint32_t adler = 1;         // the checksum of its filtered rows...
    std::size_t length = 0;          // ...and how many bytes they are
};
// Every row of `rows`; the last band of the picture closes the stream.
PngBand compressPngBand(const Image& rows, bool last, PngEffort effort);

// The stream's checksum over its bands in order, and the end of the file.
class PngEnd {
public:
    void add(const PngBand& band);
    std::vector<std::uint8_t> bytes() const;

private:
    std::uint32_t adler_ = 1;
};

// A whole picture as one band, at the fastest level.
EncodedImage encodeFastPng(const Image& image);

} // namespace orrery::imageio
