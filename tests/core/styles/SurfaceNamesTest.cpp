#include "core/styles/SurfaceNames.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include <unistd.h>

namespace orrery {
namespace {

TEST(SurfaceName, ThreeDigitsZeroPadded) {
    EXPECT_EQ(surfaceName(1), "Surface001");
    EXPECT_EQ(surfaceName(3), "Surface003");
    EXPECT_EQ(surfaceName(48), "Surface048");
    EXPECT_EQ(surfaceName(1234), "Surface1234");
}

// Points ORRERY_SURFACE_DIR at a fresh folder for the length of a test.
class SurfaceFolder : public ::testing::Test {
protected:
    void SetUp() override {
        folder_ = std::filesystem::temp_directory_path() /
                  ("orrery-surfaces-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder_ / "thumbs");
        ::setenv("ORRERY_SURFACE_DIR", folder_.c_str(), 1);
    }
    void TearDown() override {
        ::unsetenv("ORRERY_SURFACE_DIR");
        std::filesystem::remove_all(folder_);
    }
    void touch(const std::filesystem::path& relative) { std::ofstream(folder_ / relative) << "x"; }

    std::filesystem::path folder_;
};

TEST_F(SurfaceFolder, TheEnvironmentComesFirst) {
    const auto candidates = surfaceDirectoryCandidates();
    ASSERT_FALSE(candidates.empty());
    EXPECT_EQ(candidates.front(), folder_);
    EXPECT_EQ(findSurfaceDirectory(), folder_);
    // The installed location sits beside the executable's folder.
    ASSERT_GE(candidates.size(), 2u);
    EXPECT_EQ(candidates[1].filename(), "surfaces");
    EXPECT_EQ(candidates[1].parent_path().filename(), "orrery");
}

TEST_F(SurfaceFolder, FilesAreFoundByNameAndMissingOnesAreNoSurface) {
    touch("Surface003.png");
    touch("thumbs/Surface003.png");
    EXPECT_EQ(surfaceImagePath(3), folder_ / "Surface003.png");
    EXPECT_EQ(surfaceThumbnailPath(3), folder_ / "thumbs" / "Surface003.png");
    EXPECT_FALSE(surfaceImagePath(4));
    EXPECT_FALSE(surfaceThumbnailPath(0));
    EXPECT_FALSE(surfaceImagePath(-1));
}

} // namespace
} // namespace orrery
