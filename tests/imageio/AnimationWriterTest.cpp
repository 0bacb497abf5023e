#include "imageio/AnimationWriter.h"
#include "tests/imageio/SamplePicture.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orrery::testing {
namespace {

constexpr AnimationFormat kFormats[] = {AnimationFormat::gif,         AnimationFormat::webp,
                                        AnimationFormat::webm,        AnimationFormat::mp4,
                                        AnimationFormat::spriteSheet, AnimationFormat::frames};

std::string outputName(AnimationFormat format) {
    const std::string_view extension = animationFormatInfo(format).extension;
    return extension.empty() ? "frames/" : "spin." + std::string(extension);
}

QStringList everything(const QTemporaryDir& folder) {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

imageio::AnimationSettings settings() {
    imageio::AnimationSettings s;
    s.width = 33; // odd sides: H.264 leaves the last column and row out
    s.height = 21;
    s.fps = 10;
    s.frames = 2;
    return s;
}

TEST(AnimationWriter, NothingShowsBeforeFinishAndAbandonLeavesNothing) {
    const Image frame = samplePicture(33, 21);
    for (const AnimationFormat format : kFormats) {
        QTemporaryDir folder;
        const std::string path =
            folder.filePath(QString::fromStdString(outputName(format))).toStdString();
        std::string error;
        auto writer = imageio::beginAnimation(format, path, settings(), error);
        ASSERT_TRUE(writer) << path << ": " << error;
        EXPECT_EQ(writer->addFrame(frame), "") << path;
        writer->abandon();
        EXPECT_EQ(everything(folder), QStringList()) << path;

        // Dropped unfinished, a writer abandons by itself.
        writer = imageio::beginAnimation(format, path, settings(), error);
        ASSERT_TRUE(writer) << path << ": " << error;
        EXPECT_EQ(writer->addFrame(frame), "") << path;
        writer.reset();
        EXPECT_EQ(everything(folder), QStringList()) << path;

        writer = imageio::beginAnimation(format, path, settings(), error);
        ASSERT_TRUE(writer) << path << ": " << error;
        EXPECT_EQ(writer->addFrame(frame), "") << path;
        EXPECT_EQ(writer->addFrame(frame), "") << path;
        EXPECT_EQ(writer->finish(), "") << path;
        writer.reset();
        const QStringList written = everything(folder);
        const QStringList expected = format == AnimationFormat::spriteSheet
                                         ? QStringList{"spin.json", "spin.png"}
                                     : format == AnimationFormat::frames
                                         ? QStringList{"frames"}
                                         : QStringList{QString::fromStdString(outputName(format))};
        EXPECT_EQ(written, expected) << path;
    }
}

TEST(AnimationWriter, OutputThatCannotBeWrittenIsRefusedAtTheStart) {
    QTemporaryDir folder;
    for (const AnimationFormat format : kFormats) {
        const std::string path =
            folder.filePath("missing/" + QString::fromStdString(outputName(format))).toStdString();
        std::string error;
        EXPECT_FALSE(imageio::beginAnimation(format, path, settings(), error)) << path;
        EXPECT_NE(error, "") << path;
    }
    // Frames too large for a sheet are refused before any is drawn.
    imageio::AnimationSettings huge = settings();
    huge.width = 4000;
    huge.frames = 48;
    std::string error;
    EXPECT_FALSE(imageio::beginAnimation(AnimationFormat::spriteSheet,
                                         folder.filePath("s.png").toStdString(), huge, error));
    EXPECT_NE(error.find("at most 16384"), std::string::npos) << error;
}

} // namespace
} // namespace orrery::testing
