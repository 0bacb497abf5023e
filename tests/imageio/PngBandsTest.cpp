#include "imageio/PngBands.h"
#include "imageio/AtomicWrite.h"
#include "imageio/ImageFile.h"
#include "tests/imageio/SamplePicture.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orrery::testing {
namespace {

// The picture as Qt's reader (libpng) takes it back.
std::optional<Image> decoded(const std::vector<std::uint8_t>& png) {
    QTemporaryDir folder;
    const std::string path = folder.filePath("a.png").toStdString();
    if (!imageio::writeFileAtomically(path, png).empty())
        return std::nullopt;
    return imageio::readImageFile(path);
}

Image rowsOf(const Image& picture, int first, int count) {
    Image rows(picture.width, count);
    std::copy_n(picture.pixel(0, first), rows.pixels.size(), rows.pixels.begin());
    return rows;
}

// Bands compressed apart (as workers do) join into one file that is read back pixel for
// pixel, transparent space and soft edge included.
TEST(PngBands, BandsJoinIntoOneLosslessPicture) {
    const Image picture = samplePicture(33, 21); // odd sides, a row not a multiple of 8 bytes
    std::vector<std::uint8_t> png = imageio::pngStart(33, 21);
    imageio::PngEnd end;
    for (const auto& [first, count] : {std::pair{0, 8}, {8, 1}, {9, 12}}) {
        // Bands of either effort join alike.
        const imageio::PngBand band = imageio::compressPngBand(
            rowsOf(picture, first, count), first + count == 21,
            first == 8 ? imageio::PngEffort::fastest : imageio::PngEffort::usual);
        end.add(band);
        png.insert(png.end(), band.chunk.begin(), band.chunk.end());
    }
    const std::vector<std::uint8_t> tail = end.bytes();
    png.insert(png.end(), tail.begin(), tail.end());
    const std::optional<Image> joined = decoded(png);
    ASSERT_TRUE(joined);
    EXPECT_EQ(joined->pixels, picture.pixels);

    const imageio::EncodedImage whole = imageio::encodeFastPng(picture);
    ASSERT_TRUE(whole.ok());
    const std::optional<Image> one = decoded(whole.bytes);
    ASSERT_TRUE(one);
    EXPECT_EQ(one->pixels, picture.pixels);
    EXPECT_FALSE(imageio::encodeFastPng(Image()).ok());
}

} // namespace
} // namespace orrery::testing
