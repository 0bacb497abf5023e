#include "imageio/ImageFile.h"
#include "tests/cli/OrreryProcess.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

namespace orrery::testing {
namespace {

namespace fs = std::filesystem;

std::array<int, 4> corner(const Image& image) {
    const std::uint8_t* p = image.pixel(0, 0);
    return {p[0], p[1], p[2], p[3]};
}

class Render : public ::testing::Test {
protected:
    std::string path(const char* name) const { return folder_.filePath(name).toStdString(); }
    std::string package(long background) {
        const std::string where = path(("system" + std::to_string(background) + ".kvx").c_str());
        writePackage(where, sampleDocument(background));
        return where;
    }

private:
    QTemporaryDir folder_;
};

TEST_F(Render, BackgroundIsLaidUnderOnlyWhenAskedAndChosen) {
    const std::string navy = package(3);
    ASSERT_EQ(runOrrery({"render", navy, "-o", path("laid.png"), "--include-background"}).status,
              0);
    ASSERT_EQ(runOrrery({"render", navy, "-o", path("bare.png")}).status, 0);
    const std::string transparent = package(0);
    ASSERT_EQ(
        runOrrery({"render", transparent, "-o", path("none.png"), "--include-background"}).status,
        0);

    const std::optional<Image> laid = imageio::readImageFile(path("laid.png"));
    const std::optional<Image> bare = imageio::readImageFile(path("bare.png"));
    const std::optional<Image> none = imageio::readImageFile(path("none.png"));
    ASSERT_TRUE(laid && bare && none);
    EXPECT_EQ(corner(*laid), (std::array<int, 4>{20, 30, 80, 255}));
    EXPECT_EQ(corner(*bare)[3], 0);
    EXPECT_EQ(corner(*none)[3], 0);
    // The planet in the middle is drawn, opaque, over whatever lies under it.
    const std::uint8_t* middle = laid->pixel(laid->width / 2, laid->height / 2);
    EXPECT_EQ(middle[3], 255);
    const std::array<int, 3> colour{middle[0], middle[1], middle[2]};
    EXPECT_NE(colour, (std::array<int, 3>{20, 30, 80}));
}

TEST_F(Render, EveryFormatHasTheDocumentSizeTimesTheScale) {
    const std::string system = package(1);
    const std::vector<std::string> names = {"p.bmp", "p.gif", "p.jpg", "p.jpeg",
                                            "p.jp2", "p.png", "p.tif", "p.tiff"};
    for (const std::string& name : names) {
        const Outcome run = runOrrery(
            {"render", system, "-o", path(name.c_str()), "--scale", "0.5", "--quality", "60"});
        ASSERT_EQ(run.status, 0) << name << ": " << run.err;
        EXPECT_EQ(run.err, "");
        std::string error;
        const std::optional<Image> image = imageio::readImageFile(path(name.c_str()), error);
        ASSERT_TRUE(image) << name << ": " << error;
        EXPECT_EQ(image->width, 320) << name;
        EXPECT_EQ(image->height, 180) << name;
    }
    ASSERT_EQ(runOrrery({"render", system, "-o", path("big.png"), "--scale", "2"}).status, 0);
    const std::optional<Image> big = imageio::readImageFile(path("big.png"));
    ASSERT_TRUE(big);
    EXPECT_EQ(big->width, 1280);
    EXPECT_EQ(big->height, 720);
}

TEST_F(Render, BadInputGivesStatusTwoAndNoFile) {
    const std::string broken = package(0);
    std::ofstream(fs::path(broken) / "data2.xml", std::ios::trunc) << "<plist><array>";
    ProjectDocument allHidden = sampleDocument(0);
    for (PlanetRecord& planet : allHidden.planets)
        planet.state = "0";
    writePackage(path("hidden.kvx"), allHidden);

    for (const std::string& input : {broken, path("hidden.kvx"), path("missing.kvx")}) {
        const Outcome run = runOrrery({"render", input, "-o", path("out.png")});
        EXPECT_EQ(run.status, 2) << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
        EXPECT_NE(run.err.find(input), std::string::npos) << run.err;
        EXPECT_FALSE(fs::exists(path("out.png")));
    }
}

TEST_F(Render, UnwritableOutputGivesStatusThree) {
    const std::string system = package(0);
    std::ofstream(path("plain")) << "a file, not a folder";
    fs::create_directory(path("taken.png"));
    for (const std::string& output :
         {path("plain/out.png"), path("missing/out.png"), path("taken.png")}) {
        const Outcome run = runOrrery({"render", system, "-o", output});
        EXPECT_EQ(run.status, 3) << output << ": " << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
        EXPECT_NE(run.err.find(output), std::string::npos) << run.err;
    }
    EXPECT_TRUE(fs::is_directory(path("taken.png")));
}

TEST_F(Render, PictureLargerThanTheRendererCanDrawIsBadUsage) {
    ProjectDocument document = sampleDocument(0);
    document.documentWidth = "6400";
    writePackage(path("wide.kvx"), document);
    const Outcome run =
        runOrrery({"render", path("wide.kvx"), "-o", path("wide.png"), "--scale", "4"});
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_EQ(run.errLines(), 1);
    EXPECT_FALSE(fs::exists(path("wide.png")));
}

} // namespace
} // namespace orrery::testing
