#include "core/export/ExportFormat.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(ExportFormat, RowsAndFileTypesAgree) {
    for (long row = 0; row < 6; ++row) {
        const auto format = formatForRow(row);
        ASSERT_TRUE(format);
        // The save panel's own file type leads back to the same format.
        EXPECT_EQ(formatForPath("x." + std::string(formatInfo(*format).fileType)), format);
    }
}

TEST(ExportFormat, RowsOutsideZeroToFiveNameNoFormat) {
    EXPECT_FALSE(formatForRow(6));
    EXPECT_FALSE(formatForRow(-1));
}

TEST(ExportFormat, PathExtensions) {
    EXPECT_EQ(formatForPath("/tmp/a.JPEG"), ExportFormat::jpeg);
    EXPECT_EQ(formatForPath("picture.Tiff"), ExportFormat::tiff);
    EXPECT_EQ(formatForPath("my.system.gif"), ExportFormat::gif);
    // Only the last extension of the name counts, never a dot in a folder name.
    EXPECT_FALSE(formatForPath("archive.png.gz"));
    EXPECT_FALSE(formatForPath("/tmp/pictures.png/plain"));
    EXPECT_FALSE(formatForPath("noextension"));
    EXPECT_FALSE(formatForPath("trailingdot."));
    EXPECT_FALSE(formatForPath(".png")); // a hidden file, not an extension
    EXPECT_FALSE(formatForPath("a.webp"));
    EXPECT_FALSE(formatForPath(""));
}

} // namespace
} // namespace orrery
