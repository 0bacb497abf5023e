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
    std::string path(const std::string& name) const {
        return folder_.filePath(QString::fromStdString(name)).toStdString();
    }
    std::string package(long background) {
        const std::string where = path("system" + std::to_string(background) + ".kvx");
        writePackage(where, sampleDocument(background));
        return where;
    }
    // Renders quietly into the folder and reads the picture back.
    std::optional<Image> rendered(const std::string& input, const std::string& name,
                                  const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments{"render", input, "-o", path(name)};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 0) << name << ": " << run.err;
        EXPECT_EQ(run.err, "");
        std::string error;
        std::optional<Image> image = imageio::readImageFile(path(name), error);
        EXPECT_TRUE(image) << name << ": " << error;
        return image;
    }

private:
    QTemporaryDir folder_;
};

TEST_F(Render, BackgroundIsLaidUnderOnlyWhenAskedAndChosen) {
    const std::string navy = package(3);
    const std::optional<Image> laid = rendered(navy, "laid.png", {"--include-background"});
    const std::optional<Image> bare = rendered(navy, "bare.png");
    const std::optional<Image> none = rendered(package(0), "none.png", {"--include-background"});
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
    for (const char* type : {"bmp", "gif", "jpg", "jpeg", "jp2", "png", "tif", "tiff"}) {
        const std::optional<Image> image =
            rendered(system, std::string("p.") + type, {"--scale", "0.5", "--quality", "60"});
        ASSERT_TRUE(image);
        EXPECT_EQ(image->width, 320) << type;
        EXPECT_EQ(image->height, 180) << type;
    }
    const std::optional<Image> big = rendered(system, "big.png", {"--scale", "2"});
    ASSERT_TRUE(big);
    EXPECT_EQ(big->width, 1280);
    EXPECT_EQ(big->height, 720);
}

TEST_F(Render, FailuresGiveTheirStatusOneLineAndNoFile) {
    const std::string system = package(0);
    const std::string broken = package(3);
    std::ofstream(fs::path(broken) / "data2.xml", std::ios::trunc) << "<plist><array>";
    ProjectDocument document = sampleDocument(0);
    for (PlanetRecord& planet : document.planets)
        planet.state = "0";
    writePackage(path("hidden.kvx"), document);
    document = sampleDocument(0);
    document.documentWidth = "6400";
    writePackage(path("wide.kvx"), document);
    std::ofstream(path("plain")) << "a file, not a folder";
    fs::create_directory(path("taken.png"));

    const struct {
        std::string input, output, scale;
        int status; // 1 bad usage, 2 bad input, 3 unwritable output
        std::string named;
    } cases[] = {
        {broken, path("out.png"), "1", 2, broken},
        {path("hidden.kvx"), path("out.png"), "1", 2, path("hidden.kvx")},
        {path("missing.kvx"), path("out.png"), "1", 2, path("missing.kvx")},
        {system, path("plain/out.png"), "1", 3, path("plain/out.png")},
        {system, path("missing/out.png"), "1", 3, path("missing/out.png")},
        {system, path("taken.png"), "1", 3, path("taken.png")},
        // Larger than the renderer can draw.
        {path("wide.kvx"), path("out.png"), "4", 1, ""},
    };
    for (const auto& c : cases) {
        const Outcome run = runOrrery({"render", c.input, "-o", c.output, "--scale", c.scale});
        EXPECT_EQ(run.status, c.status) << c.input << " -> " << c.output << ": " << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
        EXPECT_NE(run.err.find(c.named), std::string::npos) << run.err;
        EXPECT_FALSE(fs::exists(path("out.png")));
    }
    EXPECT_TRUE(fs::is_directory(path("taken.png")));
}

} // namespace
} // namespace orrery::testing
