#include "imageio/Jpeg2000Encoder.h"

#include "imageio/OpenJpegSupport.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <thread>

namespace orrery::imageio {
namespace {

using namespace openjpeg;

constexpr float kLowestQualityRatio = 100.0f;

bool hasTransparency(const Image& image) {
    for (std::size_t i = 3; i < image.pixels.size(); i += 4)
        if (image.pixels[i] != 255)
            return true;
    return false;
}

// Every side must hold 2^(resolutions - 1) pixels at the coarsest level.
int resolutionsFor(const Image& image) {
    const int shortSide = std::min(image.width, image.height);
    return std::min(6, static_cast<int>(std::floor(std::log2(shortSide))) + 1);
}

ImagePtr makeOpenJpegImage(const Image& image, bool withAlpha) {
    const int components = withAlpha ? 4 : 3;
    std::array<opj_image_cmptparm_t, 4> parameters{};
    for (opj_image_cmptparm_t& p : parameters) {
        p.dx = 1;
        p.dy = 1;
        p.w = static_cast<OPJ_UINT32>(image.width);
        p.h = static_cast<OPJ_UINT32>(image.height);
        p.prec = 8;
        p.sgnd = 0;
    }
    ImagePtr encoded(
        opj_image_create(static_cast<OPJ_UINT32>(components), parameters.data(), OPJ_CLRSPC_SRGB));
    if (!encoded)
        return encoded;
    encoded->x1 = static_cast<OPJ_UINT32>(image.width);
    encoded->y1 = static_cast<OPJ_UINT32>(image.height);
    if (withAlpha)
        encoded->comps[3].alpha = 1;
    const std::size_t count = image.pixels.size() / 4;
    for (int c = 0; c < components; ++c) {
        OPJ_INT32* samples = encoded->comps[c].data;
        for (std::size_t i = 0; i < count; ++i)
            samples[i] = image.pixels[i * 4 + static_cast<std::size_t>(c)];
    }
    return encoded;
}

opj_cparameters_t encoderParameters(const Image& image, float compression) {
    opj_cparameters_t parameters;
    opj_set_default_encoder_parameters(&parameters);
    parameters.numresolution = resolutionsFor(image);
    parameters.tcp_numlayers = 1;
    parameters.cp_disto_alloc = 1;
    parameters.tcp_mct = 1; // decorrelate red, green and blue
    parameters.tcp_rates[0] = jpeg2000Ratio(compression);
    // The 9/7 wavelet for lossy files; the reversible 5/3 one keeps every pixel.
    parameters.irreversible = parameters.tcp_rates[0] > 0.0f ? 1 : 0;
    return parameters;
}

} // namespace

float jpeg2000Ratio(float compression) {
    if (!(compression < 1.0f))
        return 0.0f;
    const float factor = std::max(compression, 0.0f);
    return 1.0f + (kLowestQualityRatio - 1.0f) * (1.0f - factor);
}

EncodedImage encodeJpeg2000(const Image& image, float compression) {
    if (image.isNull())
        return EncodedImage::failure("the picture is empty");

    // Alpha is only recognised with the sRGB colour space and the JP2 container.
    ImagePtr encoded = makeOpenJpegImage(image, hasTransparency(image));
    CodecPtr codec(opj_create_compress(OPJ_CODEC_JP2));
    if (!encoded || !codec)
        return EncodedImage::failure("out of memory for the JPEG 2000 encoder");
    std::string errors;
    collectErrors(codec.get(), errors);
    opj_cparameters_t parameters = encoderParameters(image, compression);
    if (!opj_setup_encoder(codec.get(), &parameters, encoded.get()))
        return EncodedImage::failure("the JPEG 2000 encoder refused its settings: " + errors);
    opj_codec_set_threads(codec.get(),
                          static_cast<int>(std::max(1u, std::thread::hardware_concurrency())));

    std::vector<std::uint8_t> bytes;
    MemoryCursor cursor{&bytes, 0};
    StreamPtr stream = writeStream(cursor);
    if (!stream)
        return EncodedImage::failure("out of memory for the JPEG 2000 encoder");
    if (!opj_start_compress(codec.get(), encoded.get(), stream.get()) ||
        !opj_encode(codec.get(), stream.get()) || !opj_end_compress(codec.get(), stream.get()))
        return EncodedImage::failure("the JPEG 2000 encoder failed: " +
                                     (errors.empty() ? std::string("unknown error") : errors));
    return {std::move(bytes), {}};
}

} // namespace orrery::imageio
