#include "imageio/ImageEncoder.h"
#include "imageio/ImageFile.h"
#include "imageio/Jpeg2000Encoder.h"
#include "tests/imageio/SamplePicture.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace orrery::imageio {
namespace {

using orrery::testing::pixelAt;
using orrery::testing::samplePicture;

std::string pathIn(const QTemporaryDir& folder, ExportFormat format) {
    return folder.filePath(QString("picture.") + formatInfo(format).fileType.data()).toStdString();
}

class EveryFormat : public ::testing::TestWithParam<ExportFormat> {};

TEST_P(EveryFormat, WrittenFileDecodesToTheSameSize) {
    QTemporaryDir folder;
    // Odd sizes, a single pixel and sizes below JPEG 2000's coarsest resolution level.
    const std::pair<int, int> sizes[] = {{1, 1}, {3, 2}, {2, 40}, {97, 61}, {320, 180}};
    for (const auto& [width, height] : sizes) {
        const std::string path = pathIn(folder, GetParam());
        ASSERT_EQ(writeImageFile(samplePicture(width, height), path, GetParam(), 0.85f), "")
            << width << " x " << height;
        std::string error;
        const std::optional<Image> decoded = readImageFile(path, error);
        ASSERT_TRUE(decoded) << width << " x " << height << ": " << error;
        EXPECT_EQ(decoded->width, width);
        EXPECT_EQ(decoded->height, height);
    }
}

TEST_P(EveryFormat, EmptyPictureIsRefusedAndNothingIsWritten) {
    QTemporaryDir folder;
    const std::string path = pathIn(folder, GetParam());
    EXPECT_NE(writeImageFile(Image{}, path, GetParam(), 0.85f), "");
    EXPECT_FALSE(std::filesystem::exists(path));
}

INSTANTIATE_TEST_SUITE_P(Formats, EveryFormat,
                         ::testing::Values(ExportFormat::bmp, ExportFormat::gif, ExportFormat::jpeg,
                                           ExportFormat::jpeg2000, ExportFormat::png,
                                           ExportFormat::tiff),
                         [](const ::testing::TestParamInfo<ExportFormat>& param) {
                             return std::string(formatInfo(param.param).fileType);
                         });

std::optional<Image> roundTrip(const Image& picture, ExportFormat format, float compression) {
    QTemporaryDir folder;
    const std::string path = pathIn(folder, format);
    if (!writeImageFile(picture, path, format, compression).empty())
        return std::nullopt;
    return readImageFile(path);
}

TEST(LosslessFormats, PngKeepsEveryPixelAndItsTransparency) {
    const Image picture = samplePicture(64, 48);
    const std::optional<Image> decoded = roundTrip(picture, ExportFormat::png, 0.85f);
    ASSERT_TRUE(decoded);
    // Straight alpha is kept as it is: a premultiplied detour would change the colours
    // of the soft edge.
    EXPECT_EQ(decoded->pixels, picture.pixels);
}

// The value of the TIFF ExtraSamples tag (338) of the first directory, 0 when absent.
int tiffExtraSamples(const std::vector<std::uint8_t>& bytes) {
    if (bytes.size() < 8 || bytes[0] != 'I')
        return -1; // Qt writes little-endian files
    const auto u16 = [&](std::size_t at) {
        return bytes[at] | bytes[at + 1] << 8;
    };
    const std::size_t directory = static_cast<std::size_t>(u16(4) | u16(6) << 16);
    const int entries = u16(directory);
    for (int i = 0; i < entries; ++i) {
        const std::size_t entry = directory + 2 + 12 * static_cast<std::size_t>(i);
        if (u16(entry) == 338)
            return u16(entry + 8);
    }
    return 0;
}

TEST(LosslessFormats, TiffHoldsStraightAlpha) {
    QTemporaryDir folder;
    const std::string path = pathIn(folder, ExportFormat::tiff);
    const Image picture = samplePicture(64, 48);
    ASSERT_EQ(writeImageFile(picture, path, ExportFormat::tiff, 0.85f), "");
    // 2 marks unassociated (straight) alpha.
    EXPECT_EQ(tiffExtraSamples(orrery::testing::fileBytes(path)), 2);
    const std::optional<Image> decoded = readImageFile(path);
    ASSERT_TRUE(decoded);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const auto source = pixelAt(picture, x, y);
            const auto written = pixelAt(*decoded, x, y);
            ASSERT_EQ(written[3], source[3]) << x << "," << y;
            // Qt reads TIFF through premultiplied pixels, so only opaque colours come
            // back exactly.
            if (source[3] == 255) {
                ASSERT_EQ(written, source) << x << "," << y;
            }
        }
    }
}

TEST(Gif, OnlyFullyTransparentPixelsBecomeTransparent) {
    const Image picture = samplePicture(80, 60);
    const std::optional<Image> decoded = roundTrip(picture, ExportFormat::gif, 0.85f);
    ASSERT_TRUE(decoded);
    long colourError = 0;
    long opaque = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const auto source = pixelAt(picture, x, y);
            const auto written = pixelAt(*decoded, x, y);
            if (source[3] == 0) {
                ASSERT_EQ(written[3], 0) << x << "," << y;
                continue;
            }
            // Even the faintest edge pixel stays, opaque, in its own colour.
            ASSERT_EQ(written[3], 255) << x << "," << y;
            for (int c = 0; c < 3; ++c)
                colourError += std::abs(written[static_cast<std::size_t>(c)] -
                                        source[static_cast<std::size_t>(c)]);
            ++opaque;
        }
    }
    ASSERT_GT(opaque, 0);
    // The noisy planet has far more than 256 colours; the palette and dithering keep the
    // mean error per channel small.
    EXPECT_LT(static_cast<double>(colourError) / (3.0 * opaque), 6.0);
}

TEST(Gif, DegeneratePalettes) {
    // All transparent, a single opaque colour: palettes of one entry padded to two.
    Image transparent(5, 4);
    const std::optional<Image> empty = roundTrip(transparent, ExportFormat::gif, 0.85f);
    ASSERT_TRUE(empty);
    EXPECT_EQ(pixelAt(*empty, 4, 3)[3], 0);

    Image red(5, 4);
    for (std::size_t i = 0; i < red.pixels.size(); i += 4) {
        red.pixels[i] = 255;
        red.pixels[i + 3] = 255;
    }
    const std::optional<Image> solid = roundTrip(red, ExportFormat::gif, 0.85f);
    ASSERT_TRUE(solid);
    EXPECT_EQ(pixelAt(*solid, 2, 2), (std::array<int, 4>{255, 0, 0, 255}));
}

TEST(Gif, SidesBeyondTheFormatAreRefused) {
    EXPECT_FALSE(encodeImage(Image(65536, 1), ExportFormat::gif, 0.85f).ok());
    EXPECT_TRUE(encodeImage(Image(65535, 1), ExportFormat::gif, 0.85f).ok());
}

TEST(LossyFormats, LowerQualityGivesSmallerFiles) {
    const Image picture = samplePicture(200, 150);
    const std::pair<ExportFormat, float> lowest[] = {{ExportFormat::jpeg, 0.10f},
                                                     {ExportFormat::jpeg2000, 0.20f}};
    for (const auto& [format, low] : lowest) {
        const EncodedImage small = encodeImage(picture, format, low);
        const EncodedImage large = encodeImage(picture, format, 0.90f);
        ASSERT_TRUE(small.ok() && large.ok()) << formatInfo(format).fileType;
        EXPECT_LT(small.bytes.size(), large.bytes.size()) << formatInfo(format).fileType;
    }
}

TEST(Jpeg2000, FullQualityIsLossless_LossyKeepsTheAlphaChannel) {
    const Image picture = samplePicture(64, 48);
    const std::optional<Image> lossless = roundTrip(picture, ExportFormat::jpeg2000, 1.0f);
    ASSERT_TRUE(lossless);
    EXPECT_EQ(lossless->pixels, picture.pixels);
    const std::optional<Image> lossy = roundTrip(picture, ExportFormat::jpeg2000, 0.85f);
    ASSERT_TRUE(lossy);
    // Space stays (nearly) transparent and the planet's middle (nearly) opaque: the fourth
    // channel is read back as alpha, not dropped or taken for a colour.
    EXPECT_LE(pixelAt(*lossy, 0, 0)[3], 8);
    EXPECT_GE(pixelAt(*lossy, 32, 24)[3], 247);
}

} // namespace
} // namespace orrery::imageio
