#include "core/animate/AnimationFormat.h"
#include "core/animate/AnimationOptions.h"
#include "core/animate/FrameFiles.h"
#include "core/animate/FrameTiming.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(Frames, FormatsFromThePath) {
    EXPECT_EQ(animationFormatForPath("spin.GIF"), AnimationFormat::gif);
    EXPECT_EQ(animationFormatForPath("a/spin.webp"), AnimationFormat::webp);
    EXPECT_EQ(animationFormatForPath("spin.webm"), AnimationFormat::webm);
    EXPECT_EQ(animationFormatForPath("spin.mp4"), AnimationFormat::mp4);
    EXPECT_EQ(animationFormatForPath("sheet.png"), AnimationFormat::spriteSheet);
    EXPECT_EQ(animationFormatForPath("out/frames/"), AnimationFormat::frames);
    EXPECT_FALSE(animationFormatForPath("out/frames")); // a folder is asked for with its '/'
    EXPECT_FALSE(animationFormatForPath("spin.jpg"));
    EXPECT_FALSE(animationFormatForPath(".gif"));
    EXPECT_FALSE(animationFormatForPath(""));
    EXPECT_FALSE(animationFormatInfo(AnimationFormat::mp4).keepsAlpha);
}

TEST(Frames, LimitsOfTheOptions) {
    EXPECT_EQ(frameCountProblem(2), "");
    EXPECT_EQ(frameCountProblem(720), "");
    EXPECT_EQ(frameCountProblem(1), "a loop has 2 to 720 frames, not 1");
    EXPECT_NE(frameCountProblem(721), "");
    EXPECT_EQ(fpsProblem(1), "");
    EXPECT_EQ(fpsProblem(60), "");
    EXPECT_NE(fpsProblem(0), "");
    EXPECT_NE(fpsProblem(61), "");
    EXPECT_EQ(spinModeNamed("by-size"), SpinMode::bySize);
    EXPECT_EQ(spinModeNamed("same"), SpinMode::same);
    EXPECT_FALSE(spinModeNamed("fast"));
}

TEST(Frames, TicksAddUpToTheLoopsLength) {
    struct Row {
        int frames;
        int fps;
        int ticksPerSecond;
        int total;
    };
    // GIF in hundredths, WebP and atlases in milliseconds.
    for (const Row row : {Row{48, 24, 100, 200}, Row{48, 24, 1000, 2000}, Row{7, 60, 100, 12},
                          Row{720, 60, 1000, 12000}, Row{5, 3, 1000, 1667}}) {
        int sum = 0;
        for (int n = 0; n < row.frames; ++n) {
            const int length = frameLengthTicks(n, row.fps, row.ticksPerSecond);
            // No frame strays more than a tick from the exact length.
            EXPECT_LE(std::abs(length * row.fps - row.ticksPerSecond), row.fps);
            sum += length;
        }
        EXPECT_EQ(sum, row.total) << row.frames << " at " << row.fps;
    }
}

TEST(Frames, NamesAndRanges) {
    EXPECT_EQ(frameFileName("spin", 0), "spin_0001.png");
    EXPECT_EQ(frameFileName("spin", 719), "spin_0720.png");
    EXPECT_EQ(frameStem("out/spin/"), "spin");
    EXPECT_EQ(frameStem("spin//"), "spin");
    EXPECT_EQ(frameStem("/"), "frame");
    EXPECT_EQ(frameStem("./"), "frame");

    std::string error;
    EXPECT_EQ(parseFrameRange("1-48", 48, error), (FrameRange{0, 47}));
    EXPECT_EQ(parseFrameRange("5-5", 48, error), (FrameRange{4, 4}));
    for (const char* bad : {"0-4", "4-3", "1-49", "3", "-3", "a-b", "1-2-3", " 1-2", ""}) {
        error.clear();
        EXPECT_FALSE(parseFrameRange(bad, 48, error)) << bad;
        EXPECT_NE(error.find("--range"), std::string::npos) << bad;
    }
}

} // namespace
} // namespace orrery
