#include "imageio/AtomicWrite.h"
#include "imageio/ImageFile.h"
#include "tests/imageio/SamplePicture.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

namespace orrery::imageio {
namespace {

namespace fs = std::filesystem;
using orrery::testing::fileBytes;

std::vector<std::uint8_t> bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

void writePlain(const fs::path& path, std::string_view text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::size_t entriesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

// A file-size limit makes every write past it fail, as on a full disk (it even stops root,
// which a read-only folder does not).
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &saved_);
        previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = saved_;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, previousHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit saved_{};
    void (*previousHandler_)(int) = nullptr;
};

TEST(AtomicWrite, ReplacesTheWholeFileAndKeepsItsPermissions) {
    QTemporaryDir folder;
    const fs::path path = folder.filePath("note.txt").toStdString();
    writePlain(path, "an older and much longer content");
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    ASSERT_EQ(writeFileAtomically(path, bytesOf("new")), "");
    EXPECT_EQ(fileBytes(path), bytesOf("new"));
    EXPECT_EQ(fs::status(path).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(entriesIn(folder.path().toStdString()), 1u); // no temporary file left over
}

TEST(AtomicWrite, ImpossiblePathsFailWithAReasonAndCreateNothing) {
    QTemporaryDir folder;
    const fs::path root = folder.path().toStdString();
    writePlain(root / "plain", "x");
    fs::create_directory(root / "taken.png");
    const fs::path underFile = root / "plain" / "picture.png";
    const fs::path missingFolder = root / "missing" / "picture.png";

    for (const fs::path& path : {underFile, missingFolder, root / "taken.png"}) {
        const std::string error = writeFileAtomically(path, bytesOf("data"));
        EXPECT_NE(error, "") << path;
    }
    EXPECT_FALSE(fs::exists(underFile));
    EXPECT_FALSE(fs::exists(missingFolder));
    EXPECT_TRUE(fs::is_directory(root / "taken.png"));
    EXPECT_EQ(entriesIn(root), 2u);
}

// Bytes written at once, and a picture that Qt's writer streams into the file, alike.
TEST(AtomicWrite, WriteThatRunsOutOfSpaceLeavesTheOldFile) {
    QTemporaryDir folder;
    const fs::path root = folder.path().toStdString();
    const fs::path path = root / "picture.bmp";
    writePlain(path, "the previous picture");
    const std::vector<std::uint8_t> large(1 << 20, 7);
    std::string error;
    std::string streamedError;
    {
        FileSizeLimit limit(64 * 1024);
        error = writeFileAtomically(path, large);
        streamedError = writeImageFile(orrery::testing::samplePicture(512, 512), path.string(),
                                       ExportFormat::bmp, 1.0f);
    }
    EXPECT_NE(error, "");
    EXPECT_NE(streamedError, "");
    EXPECT_EQ(fileBytes(path), bytesOf("the previous picture"));
    EXPECT_EQ(entriesIn(root), 1u);
}

} // namespace
} // namespace orrery::imageio
