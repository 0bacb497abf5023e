#include "imageio/Jpeg2000Decoder.h"

#include "imageio/OpenJpegSupport.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace orrery::imageio {
namespace {

using namespace openjpeg;

constexpr std::array<std::uint8_t, 12> kJp2Signature{0x00, 0x00, 0x00, 0x0C, 0x6A, 0x50,
                                                     0x20, 0x20, 0x0D, 0x0A, 0x87, 0x0A};
constexpr std::array<std::uint8_t, 4> kCodestreamStart{0xFF, 0x4F, 0xFF, 0x51};
// 128 MB of pixels, the bound Qt's readers apply by default: a hostile header cannot make us
// allocate gigabytes for a few bytes of file.
constexpr std::uint64_t kMaxPixels = 32'000'000;

bool startsWith(std::span<const std::uint8_t> bytes, const std::uint8_t* prefix,
                std::size_t length) {
    return bytes.size() >= length && std::equal(prefix, prefix + length, bytes.begin());
}

bool isJp2(std::span<const std::uint8_t> bytes) {
    return startsWith(bytes, kJp2Signature.data(), kJp2Signature.size());
}

// Only full-resolution 8-bit unsigned components of the picture's size are understood.
bool plainComponents(const opj_image_t& image) {
    if (image.numcomps < 1 || image.numcomps > 4)
        return false;
    const OPJ_UINT32 width = image.x1 - image.x0;
    const OPJ_UINT32 height = image.y1 - image.y0;
    for (OPJ_UINT32 c = 0; c < image.numcomps; ++c) {
        const opj_image_comp_t& comp = image.comps[c];
        if (comp.dx != 1 || comp.dy != 1 || comp.w != width || comp.h != height || comp.prec != 8 ||
            comp.sgnd != 0 || comp.data == nullptr)
            return false;
    }
    return true;
}

std::uint8_t sample(const opj_image_comp_t& comp, std::size_t i) {
    return static_cast<std::uint8_t>(std::clamp<OPJ_INT32>(comp.data[i], 0, 255));
}

Image toImage(const opj_image_t& decoded) {
    Image image(static_cast<int>(decoded.x1 - decoded.x0),
                static_cast<int>(decoded.y1 - decoded.y0));
    const bool colour = decoded.numcomps >= 3;
    const OPJ_UINT32 colourComponents = colour ? 3 : 1;
    const bool alpha = decoded.numcomps > colourComponents;
    const std::size_t count = image.pixels.size() / 4;
    for (std::size_t i = 0; i < count; ++i) {
        std::uint8_t* p = image.pixels.data() + i * 4;
        for (int c = 0; c < 3; ++c)
            p[c] = sample(decoded.comps[colour ? c : 0], i);
        p[3] = alpha ? sample(decoded.comps[colourComponents], i) : 255;
    }
    return image;
}

} // namespace

bool looksLikeJpeg2000(std::span<const std::uint8_t> bytes) {
    return isJp2(bytes) || startsWith(bytes, kCodestreamStart.data(), kCodestreamStart.size());
}

std::optional<Image> decodeJpeg2000(std::vector<std::uint8_t> bytes, std::string& error) {
    CodecPtr codec(opj_create_decompress(isJp2(bytes) ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K));
    MemoryCursor cursor{&bytes, 0};
    StreamPtr stream = readStream(cursor);
    if (!codec || !stream) {
        error = "out of memory for the JPEG 2000 decoder";
        return std::nullopt;
    }
    std::string errors;
    collectErrors(codec.get(), errors);
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    opj_image_t* rawImage = nullptr;
    if (!opj_setup_decoder(codec.get(), &parameters) ||
        !opj_read_header(stream.get(), codec.get(), &rawImage)) {
        opj_image_destroy(rawImage);
        error = "not a readable JPEG 2000 file";
        return std::nullopt;
    }
    ImagePtr decoded(rawImage);
    const std::uint64_t pixels =
        std::uint64_t{decoded->x1 - decoded->x0} * (decoded->y1 - decoded->y0);
    if (pixels == 0 || pixels > kMaxPixels) {
        error = "the JPEG 2000 picture is empty or too large";
        return std::nullopt;
    }
    if (!opj_decode(codec.get(), stream.get(), decoded.get()) ||
        !opj_end_decompress(codec.get(), stream.get())) {
        error = "the JPEG 2000 file is damaged" + (errors.empty() ? "" : ": " + errors);
        return std::nullopt;
    }
    if (!plainComponents(*decoded)) {
        error = "the JPEG 2000 file holds samples this program does not read";
        return std::nullopt;
    }
    return toImage(*decoded);
}

} // namespace orrery::imageio
