#include "imageio/ImageFile.h"
#include "tests/cli/OrreryProcess.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstring>
#include <filesystem>
#include <fstream>

namespace orrery::testing {
namespace {

namespace fs = std::filesystem;

// A program's standard output, or "" when it did not run to a clean end.
std::string outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().toStdString();
}

// What ffprobe, FFmpeg's own reader, finds in the first video stream, frames counted.
nlohmann::json probed(const std::string& file) {
    const std::string json = outputOf("ffprobe", {"-v", "error", "-count_frames", "-show_streams",
                                                  "-of", "json", QString::fromStdString(file)});
    const auto all = nlohmann::json::parse(json, nullptr, false);
    return all.is_discarded() || all["streams"].empty() ? nlohmann::json() : all["streams"][0];
}

// What Pillow (Debian's, beside Debian's python3) reads from a GIF or WebP: frames, size, loop,
// total milliseconds, and whether the first frame is transparent in its corner and opaque in its
// middle.
nlohmann::json pillowRead(const std::string& file) {
    const char* script = R"(import json, sys
def colourTables(name):
    """The distinct colour tables of a GIF's frames, read block by block."""
    d = open(name, "rb").read()
    if d[:3] != b"GIF":
        return set()
    i, tables = 13 + (3 << ((d[10] & 7) + 1) if d[10] & 0x80 else 0), set()
    while i < len(d) and d[i] in (0x21, 0x2C):
        if d[i] == 0x2C:
            flags, i = d[i + 9], i + 10
            if flags & 0x80:
                tables.add(d[i:i + (3 << ((flags & 7) + 1))])
                i += 3 << ((flags & 7) + 1)
            i += 1  # the LZW code size
        else:
            i += 2
        while d[i]:
            i += d[i] + 1
        i += 1
    return tables
from PIL import Image
im = Image.open(sys.argv[1])
total = 0
for i in range(im.n_frames):
    im.seek(i)
    im.load()
    total += im.info.get("duration", 0)
im.seek(0)
rgba = im.convert("RGBA")
w, h = im.size
print(json.dumps({"frames": im.n_frames, "width": w, "height": h, "loop": im.info.get("loop"), "palettes": len(colourTables(sys.argv[1])),
    "ms": total, "corner": rgba.getpixel((0, 0))[3], "middle": rgba.getpixel((w // 2, h // 2))[3]}))
)";
    return nlohmann::json::parse(
        outputOf("/usr/bin/python3", {"-c", script, QString::fromStdString(file)}));
}

// The mean difference of two pictures' samples.
double meanDifference(const Image& a, const Image& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        sum += std::abs(a.pixels[i] - b.pixels[i]);
    return sum / static_cast<double>(a.pixels.size());
}

class Animate : public ::testing::Test {
protected:
    void SetUp() override { writePackage(system_, sampleDocument(1)); }
    std::string path(const std::string& name) const {
        return folder_.filePath(QString::fromStdString(name)).toStdString();
    }
    // Animates the sample system (160 x 90) quietly into the folder.
    void animate(const std::string& output, const std::vector<std::string>& options) {
        std::vector<std::string> arguments{"animate",    system_,   "-o",
                                           path(output), "--scale", "0.25"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 0) << output << ": " << run.err;
        EXPECT_EQ(run.err, "");
    }

    QTemporaryDir folder_;
    std::string system_ = path("system.kvx");
};

TEST_F(Animate, IndependentReadersFindTheFramesSizeRateAndAlpha) {
    animate("spin.gif", {"--frames", "8", "--fps", "12"});
    animate("steady.gif", {"--frames", "8", "--fps", "12", "--gif-palette", "loop"});
    animate("spin.webp", {"--frames", "8", "--fps", "12", "--quality", "60"});
    animate("spin.webm", {"--frames", "8", "--fps", "12"});
    animate("spin.mp4", {"--frames", "8", "--fps", "12", "--include-background"});

    // 8 frames at 12 a second last 667 ms; GIF counts in hundredths.
    // Each frame has its own palette, or all share the loop's one.
    EXPECT_GT(pillowRead(path("spin.gif"))["palettes"], 1);
    EXPECT_EQ(pillowRead(path("steady.gif"))["palettes"], 1);
    for (const char* name : {"spin.gif", "steady.gif", "spin.webp"}) {
        const nlohmann::json read = pillowRead(path(name));
        EXPECT_EQ(read["frames"], 8) << name;
        EXPECT_EQ(read["width"], 160) << name;
        EXPECT_EQ(read["height"], 90) << name;
        EXPECT_EQ(read["loop"], 0) << name; // forever
        EXPECT_NEAR(read["ms"].get<int>(), 667, 3) << name;
        EXPECT_EQ(read["corner"], 0) << name;
        EXPECT_EQ(read["middle"], 255) << name;
    }
    for (const char* name : {"spin.gif", "spin.webm", "spin.mp4"}) {
        const nlohmann::json stream = probed(path(name));
        EXPECT_EQ(stream["nb_read_frames"], "8") << name;
        EXPECT_EQ(stream["width"], 160) << name;
        EXPECT_EQ(stream["height"], 90) << name;
    }
    EXPECT_EQ(probed(path("spin.webm"))["r_frame_rate"], "12/1");
    EXPECT_EQ(probed(path("spin.mp4"))["r_frame_rate"], "12/1");
    EXPECT_EQ(probed(path("spin.webm"))["tags"]["ALPHA_MODE"], "1");
    // The alpha plane itself, decoded by libvpx: transparent around the planet, opaque on it.
    const std::string rgba =
        outputOf("ffmpeg", {"-v", "error", "-c:v", "libvpx-vp9", "-i",
                            QString::fromStdString(path("spin.webm")), "-frames:v", "1", "-f",
                            "rawvideo", "-pix_fmt", "rgba", "-"});
    ASSERT_EQ(rgba.size(), 160u * 90 * 4);
    EXPECT_LT(static_cast<unsigned char>(rgba[3]), 8);
    EXPECT_GT(static_cast<unsigned char>(rgba[(45 * 160 + 80) * 4 + 3]), 247);
}

TEST_F(Animate, LoopClosesRangesJoinAndTheSheetHoldsTheFrames) {
    const std::vector<std::string> loop{"--frames", "12", "--light-orbit"};
    animate("whole/", loop);
    std::vector<Image> frames;
    for (int n = 1; n <= 12; ++n) {
        char name[32];
        std::snprintf(name, sizeof name, "whole/whole_%04d.png", n);
        std::optional<Image> frame = imageio::readImageFile(path(name));
        ASSERT_TRUE(frame) << name;
        frames.push_back(std::move(*frame));
    }
    // The step from the last frame to the first is like any other: no jump, no repeat.
    std::vector<double> steps;
    for (std::size_t n = 0; n < frames.size(); ++n)
        steps.push_back(meanDifference(frames[n], frames[(n + 1) % frames.size()]));
    const double seam = steps.back();
    steps.pop_back();
    const auto [least, most] = std::minmax_element(steps.begin(), steps.end());
    EXPECT_GT(*least, 0.0);
    EXPECT_GE(seam, *least * 0.8);
    EXPECT_LE(seam, *most * 1.2);

    // A piece of the loop drawn apart is byte for byte the same frames, numbered the same.
    fs::create_directory(path("piece"));
    std::vector<std::string> piece = loop;
    piece.insert(piece.end(), {"--range", "4-6"});
    animate("piece/whole/", piece);
    EXPECT_EQ(QDir(QString::fromStdString(path("piece/whole"))).count(), 5u); // with . and ..
    for (const char* name : {"whole_0004.png", "whole_0005.png", "whole_0006.png"}) {
        std::ifstream a(path("whole/") + name, std::ios::binary);
        std::ifstream b(path("piece/whole/") + name, std::ios::binary);
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(a), {}),
                  std::string(std::istreambuf_iterator<char>(b), {}))
            << name;
    }

    // The sheet's atlas points at each frame, and each holds that frame's very pixels.
    animate("sheet.png", loop);
    const std::optional<Image> sheet = imageio::readImageFile(path("sheet.png"));
    ASSERT_TRUE(sheet);
    std::ifstream atlasFile(path("sheet.json"));
    const auto atlas = nlohmann::json::parse(atlasFile);
    EXPECT_EQ(atlas["meta"]["size"], (nlohmann::json{{"w", sheet->width}, {"h", sheet->height}}));
    ASSERT_EQ(atlas["frames"].size(), frames.size());
    for (std::size_t n = 0; n < frames.size(); ++n) {
        const auto& rect = atlas["frames"][n]["frame"];
        ASSERT_EQ(rect["w"], 160);
        ASSERT_EQ(rect["h"], 90);
        bool same = true;
        for (int y = 0; y < 90; ++y)
            same = same && std::memcmp(sheet->pixel(rect["x"].get<int>(), rect["y"].get<int>() + y),
                                       frames[n].pixel(0, y), 160 * 4) == 0;
        EXPECT_TRUE(same) << "frame " << n;
    }
}

TEST_F(Animate, BadOptionsAreRefusedInOneLineAndWriteNothing) {
    const std::vector<std::vector<std::string>> cases{
        {"--frames", "1"},  {"--frames", "721"}, {"--frames", "ten"},      {"--fps", "0"},
        {"--fps", "61"},    {"--spin", "fast"},  {"--quality", "101"},     {"--scale", "0"},
        {"--range", "5-4"}, {"--range", "1-49"}, {"--gif-palette", "all"}, {"--loop"},
        {"--frames"},
    };
    for (const std::vector<std::string>& options : cases) {
        std::vector<std::string> arguments{"animate", system_, "-o", path("out/")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 1) << options[0] << ": " << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
    }
    for (const std::string output : {"spin.jpg", "spin", "sheet.png"}) {
        const std::vector<std::string> options = output == "sheet.png"
                                                     ? std::vector<std::string>{"--range", "1-2"}
                                                     : std::vector<std::string>{};
        std::vector<std::string> arguments{"animate", system_, "-o", path(output)};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 1) << output << ": " << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
    }
    EXPECT_EQ(
        QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
        QStringList{"system.kvx"});
}

TEST_F(Animate, StoppedRunLeavesNoFile) {
    QProcess process;
    process.start(ORRERY_EXECUTABLE, {"animate", QString::fromStdString(system_), "-o",
                                      QString::fromStdString(path("long.gif")), "--frames", "720"});
    ASSERT_TRUE(process.waitForStarted(-1));
    // Stop it once the hidden temporary shows that frames are being written.
    const QDir folder(folder_.path());
    while (folder.entryList({".long.gif.*"}, QDir::Files | QDir::Hidden).isEmpty() &&
           process.state() == QProcess::Running)
        QThread::msleep(20);
    process.terminate();
    process.waitForFinished(-1);
    EXPECT_EQ(process.exitCode(), 3);
    EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList{"system.kvx"});
}

} // namespace
} // namespace orrery::testing
