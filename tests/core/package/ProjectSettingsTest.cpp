#include "PackageTestSupport.h"

#include "core/package/ProjectSettings.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orrery {
namespace {

// Settings in which everything passes, to be spoilt one value at a time.
std::array<std::string, setting::readCount> validSettings() {
    return {"960",        "540", "0", "45.0",     "45.0",     "0.000000",  "0.000000",
            "500.000000", "1",   "1", "0.000000", "0.000000", "100.000000"};
}

ProjectChecks checksWith(std::size_t index, const std::string& value) {
    auto settings = validSettings();
    settings[index] = value;
    return checkProjectSettings(settings);
}

TEST(ProjectChecks, DocumentSizeBoundsAndWholeNumbers) {
    const struct {
        std::size_t index;
        const char* value;
        bool accepted;
    } cases[] = {
        {setting::width, "400", false},   {setting::width, "401", true},
        {setting::width, "6400", true},   {setting::width, "6401", false},
        {setting::width, "800.5", false}, {setting::width, "1e30", false},
        {setting::width, "", false},      {setting::width, "99999999999999999999", false},
        {setting::height, "300", false},  {setting::height, "301", true},
        {setting::height, "6400", true},  {setting::height, "6401", false},
        {setting::height, " 500", false},
    };
    for (const auto& c : cases) {
        const ProjectChecks checks = checksWith(c.index, c.value);
        const bool accepted = c.index == setting::width ? checks.width : checks.height;
        EXPECT_EQ(accepted, c.accepted) << c.index << " \"" << c.value << "\"";
        // One side's value never decides the other side's check.
        EXPECT_TRUE(c.index == setting::width ? checks.height : checks.width);
    }
}

TEST(ProjectChecks, BackgroundIsOneOfSixExactTexts) {
    for (const char* accepted : {"0", "1", "2", "3", "4", "5"})
        EXPECT_TRUE(checksWith(setting::background, accepted).background) << accepted;
    for (const char* refused : {"7", "6", "-1", "05", "1.0", "", " 1"})
        EXPECT_FALSE(checksWith(setting::background, refused).background) << refused;
}

TEST(ProjectChecks, OneBadCameraValueRefusesTheWholeCamera) {
    EXPECT_TRUE(checkProjectSettings(validSettings()).camera);
    const struct {
        std::size_t offset;
        const char* value;
    } cases[] = {{0, "29.9"}, {1, "90.5"}, {2, "1e2"}, {3, "12."}, {4, "0"}, {4, "-5"}};
    for (const auto& c : cases) {
        const ProjectChecks checks = checksWith(setting::cameraXFov + c.offset, c.value);
        EXPECT_FALSE(checks.camera) << c.value;
        for (std::size_t field = 0; field < 5; ++field)
            EXPECT_EQ(checks.cameraFields[field], field != c.offset) << c.value;
        EXPECT_TRUE(checks.light);
    }
    EXPECT_TRUE(checksWith(setting::cameraXFov + 4, "0.001").camera);
    // Only z must lie in front: x, y and the light may be negative.
    EXPECT_TRUE(checksWith(setting::cameraXFov + 2, "-5").camera);
    EXPECT_TRUE(checksWith(setting::lightX + 2, "-100").light);
}

TEST(ProjectChecks, OneBadLightValueRefusesTheLightAndMarksThatField) {
    for (std::size_t offset = 0; offset < 3; ++offset) {
        const ProjectChecks checks = checksWith(setting::lightX + offset, "nan");
        EXPECT_FALSE(checks.light);
        for (std::size_t field = 0; field < 3; ++field)
            EXPECT_EQ(checks.lightFields[field], field != offset);
        EXPECT_TRUE(checks.camera);
    }
}

TEST(ProjectSettingsList, MarkupInValuesSurvivesAndTheReservedTailIsZero) {
    ProjectDocument document = test::sampleDocument(0);
    document.documentWidth = "<&> \"wide\" 'ü'";
    const std::vector<std::string> list = projectSettingsList(document);
    ASSERT_EQ(list.size(), setting::count);
    EXPECT_EQ(std::vector<std::string>(list.begin() + 13, list.end()),
              std::vector<std::string>(18, "0"));
    std::string bytes;
    std::string error;
    ASSERT_TRUE(encodeProjectSettings(list, bytes, error)) << error;
    std::array<std::string, setting::readCount> read;
    ASSERT_TRUE(decodeProjectSettings(bytes, read, error)) << error;
    EXPECT_TRUE(std::equal(read.begin(), read.end(), list.begin()));
}

} // namespace
} // namespace orrery
