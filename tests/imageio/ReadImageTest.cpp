#include "imageio/ImageEncoder.h"
#include "imageio/ImageFile.h"
#include "tests/imageio/SamplePicture.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace orrery::imageio {
namespace {

void writeBytes(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

TEST(ReadImage, MissingFolderGarbageOrCutGivesNothingWithAReason) {
    QTemporaryDir folder;
    const std::string garbage = folder.filePath("garbage.png").toStdString();
    writeBytes(garbage, {'n', 'o', 't', ' ', 'a', ' ', 'p', 'n', 'g'});
    for (const std::string& path :
         {folder.filePath("missing.png").toStdString(), folder.path().toStdString(), garbage}) {
        std::string error;
        EXPECT_FALSE(readImageFile(path, error)) << path;
        EXPECT_NE(error, "") << path;
    }

    const EncodedImage encoded =
        encodeImage(orrery::testing::samplePicture(64, 64), ExportFormat::jpeg2000, 0.85f);
    ASSERT_TRUE(encoded.ok());
    const std::string path = folder.filePath("cut.jp2").toStdString();
    // Cut inside the header boxes, then inside the codestream.
    for (std::size_t length : {std::size_t{20}, encoded.bytes.size() / 2}) {
        writeBytes(path,
                   {encoded.bytes.begin(), encoded.bytes.begin() + static_cast<long>(length)});
        std::string error;
        const std::optional<Image> image = readImageFile(path, error);
        if (image) { // OpenJPEG may decode what it has of a cut codestream; never more
            EXPECT_EQ(image->width, 64);
        } else {
            EXPECT_NE(error, "");
        }
    }
}

} // namespace
} // namespace orrery::imageio
