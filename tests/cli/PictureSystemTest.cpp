#include "imageio/ImageFile.h"
#include "tests/cli/OrreryProcess.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>

namespace orrery::testing {
namespace {

namespace fs = std::filesystem;

// ImageMagick's convert, as another program that edits our pictures.
void magick(const QStringList& arguments) {
    QProcess process;
    process.start(ORRERY_IMAGEMAGICK, arguments);
    process.waitForFinished(-1);
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

TEST(PictureSystem, EveryExamplePictureReopensAsItsSystemByteForByte) {
    QTemporaryDir folder;
    const std::string package = folder.filePath("system.kvx").toStdString();
    const std::string back = folder.filePath("back.json").toStdString();
    for (const auto& entry : fs::directory_iterator(ORRERY_EXAMPLES_DIR)) {
        if (entry.path().extension() != ".json")
            continue;
        ASSERT_EQ(runOrrery({"convert", entry.path().string(), package}).status, 0);
        for (const char* type : {"png", "tif", "jpg"}) {
            const std::string picture =
                folder.filePath(QStringLiteral("system.") + type).toStdString();
            const Outcome render = runOrrery({"render", package, "-o", picture});
            ASSERT_EQ(render.status, 0) << render.err;
            // The system's text leaves the picture readable.
            std::string error;
            EXPECT_TRUE(imageio::readImageFile(picture, error)) << picture << ": " << error;
            const Outcome convert = runOrrery({"convert", picture, back});
            ASSERT_EQ(convert.status, 0) << convert.err;
            EXPECT_EQ(fileText(back), fileText(entry.path())) << entry.path() << " as " << type;
        }
    }
}

TEST(PictureSystem, AnEditKeepsTheSystem_AStrippedPictureIsRefusedInOneLine) {
    QTemporaryDir folder;
    const QString package = folder.filePath("system.kvx");
    const QString picture = folder.filePath("system.png");
    writePackage(package.toStdString(), sampleDocument(2));
    ASSERT_EQ(runOrrery({"render", package.toStdString(), "-o", picture.toStdString()}).status, 0);
    const Outcome original = runOrrery({"info", package.toStdString()});

    const QString edited = folder.filePath("edited.png");
    magick({picture, "-rotate", "90", "-modulate", "80", edited});
    const Outcome info = runOrrery({"info", edited.toStdString()});
    ASSERT_EQ(info.status, 0) << info.err;
    EXPECT_EQ(info.out, original.out);

    const QString stripped = folder.filePath("stripped.png");
    magick({picture, "-strip", stripped});
    const Outcome refused = runOrrery({"info", stripped.toStdString()});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err,
              "orrery: " + stripped.toStdString() + ": this picture carries no system\n");
    EXPECT_EQ(refused.out, "");
}

} // namespace
} // namespace orrery::testing
