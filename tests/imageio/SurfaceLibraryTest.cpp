#include "imageio/SurfaceLibrary.h"
#include "imageio/ImageFile.h"
#include "tests/imageio/SamplePicture.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace orrery::imageio {
namespace {

namespace fs = std::filesystem;

// Points the surface lookup at a folder of its own for the length of a test.
class SurfaceFolder {
public:
    SurfaceFolder() {
        fs::create_directory(root() / "thumbs");
        setenv("ORRERY_SURFACE_DIR", folder_.path().toLocal8Bit().constData(), 1);
    }
    ~SurfaceFolder() { unsetenv("ORRERY_SURFACE_DIR"); }
    SurfaceFolder(const SurfaceFolder&) = delete;
    SurfaceFolder& operator=(const SurfaceFolder&) = delete;

    fs::path root() const { return folder_.path().toStdString(); }

private:
    QTemporaryDir folder_;
};

TEST(SurfaceLibrary, LoadsSurfacesAndThumbnailsByNumber_MissingOrDamagedGiveNothing) {
    SurfaceFolder folder;
    for (const auto& [file, width] : {std::pair{fs::path("Surface002.png"), 64},
                                      std::pair{fs::path("thumbs") / "Surface002.png", 16}})
        ASSERT_EQ(writeImageFile(Image(width, 8), (folder.root() / file).string(),
                                 ExportFormat::png, 1.0f),
                  "");
    std::ofstream(folder.root() / "Surface004.png") << "not a picture";
    SurfaceLibrary library;
    const auto surface = library.surface(2);
    ASSERT_TRUE(surface);
    EXPECT_EQ(surface->width, 64);
    const auto named = library.surfaceNamed("Surface002");
    ASSERT_TRUE(named);
    EXPECT_EQ(named->pixels, surface->pixels);
    for (const char* name : {"Surface2", "Surface0002", "surface002", "Surface002.png"})
        EXPECT_FALSE(library.surfaceNamed(name)) << name;
    for (const int missing : {3, 4, 0, -1})
        EXPECT_FALSE(library.surface(missing)) << missing;
    // Thumbnails are decoded once and kept.
    const Image* thumbnail = library.thumbnail(2);
    ASSERT_NE(thumbnail, nullptr);
    EXPECT_EQ(thumbnail->width, 16);
    EXPECT_EQ(library.thumbnail(2), thumbnail);
    EXPECT_EQ(library.thumbnail(4), nullptr);
}

} // namespace
} // namespace orrery::imageio
