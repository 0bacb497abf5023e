#include "core/settings/SettingsReaders.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> preferences(std::string open, std::string exportTo, std::string format,
                                     std::string compression) {
    return {std::move(open), std::move(exportTo), std::move(format), std::move(compression)};
}

TEST(SettingsReaders, FoldersFallBackToDocuments) {
    const fs::path documents = "/documents";
    const fs::path existing = fs::temp_directory_path();
    EXPECT_EQ(openFolder(preferences("0", "", "0", "0"), documents), documents);
    EXPECT_EQ(exportFolder(preferences("0", "", "0", "0"), documents), documents);
    EXPECT_EQ(openFolder(preferences(existing, "0", "0", "0"), documents), existing);
    EXPECT_EQ(exportFolder(preferences("0", "/no/such/folder", "0", "0"), documents), documents);
    EXPECT_EQ(openFolder({}, documents), documents);
}

TEST(SettingsReaders, FormatRowsOfTheTwoReadersDifferByOne) {
    EXPECT_EQ(preferredFormatRow(preferences("0", "0", "0", "0")), 0);
    EXPECT_EQ(preferredFormatRow(preferences("0", "0", "5", "0")), 5);
    EXPECT_EQ(preferredFormatRow(preferences("0", "0", "9", "0")), 0);

    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "0", "0")), 4); // PNG
    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "", "0")), 4);
    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "1", "0")), 0); // BMP
    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "3", "0")), 2); // JPEG
    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "6", "0")), 5);
    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "7", "0")), 4);
    EXPECT_EQ(exportQuestionFormatRow(preferences("0", "0", "-2", "0")), 4);
}

TEST(SettingsReaders, CompressionDefaultsTo85) {
    EXPECT_EQ(compressionPercent(preferences("0", "0", "0", "0")), 85);
    EXPECT_EQ(compressionPercent(preferences("0", "0", "0", "")), 85);
    EXPECT_EQ(compressionPercent(preferences("0", "0", "0", "\x80\xff")), 85); // a damaged row
    EXPECT_EQ(compressionPercent(preferences("0", "0", "0", "40")), 40);
    EXPECT_EQ(compressionPercent(preferences("0", "0", "0", "400")), 100);
    EXPECT_EQ(compressionPercent({"0"}), 85);
}

TEST(SettingsReaders, ShortOrForeignListsGiveDefaults) {
    const std::vector<std::string> empty;
    EXPECT_EQ(preferredFormatRow(empty), 0);
    EXPECT_EQ(exportQuestionFormatRow(empty), 4);
    for (std::size_t i = 0; i < kGeneralSwitchCount; ++i)
        EXPECT_FALSE(generalSwitch(empty, static_cast<GeneralSwitch>(i)));
    EXPECT_TRUE(generalSwitch({"0", "1"}, GeneralSwitch::skipTour));
    EXPECT_FALSE(generalSwitch({"0", "abc"}, GeneralSwitch::skipTour));
}

// Each switch that changes behaviour reads its own row, and writes back under its own field.
TEST(SettingsReaders, GeneralSwitchesByName) {
    struct Row {
        GeneralSwitch which;
        std::size_t position;
        const char* field;
    };
    const Row rows[] = {{GeneralSwitch::centreAtStart, 0, "Value01"},
                        {GeneralSwitch::skipTour, 1, "Value02"},
                        {GeneralSwitch::deleteWithoutAsking, 2, "Value03"},
                        {GeneralSwitch::includeBackground, 3, "Value04"},
                        {GeneralSwitch::clearWithoutAsking, 4, "Value05"},
                        {GeneralSwitch::storedOnly12, 11, "Value12"}};
    for (const Row& row : rows) {
        std::vector<std::string> general(24, "0");
        general[row.position] = "1";
        for (const Row& other : rows)
            EXPECT_EQ(generalSwitch(general, other.which), other.position == row.position)
                << row.field << " read as " << other.field;
        EXPECT_EQ(generalField(row.which), row.field);
    }
}

TEST(WindowPlacement, StoredFrameOnlyWhenItHasASize) {
    const std::vector<std::string> defaults(12, "0");
    EXPECT_EQ(mainWindowPlacement(true, defaults, false).kind,
              WindowPlacement::Kind::CentreAndStore);
    EXPECT_EQ(mainWindowPlacement(false, defaults, false).kind, WindowPlacement::Kind::Centre);

    std::vector<std::string> stored = {"1200.7", "800", "40", "60", "300", "200", "5", "6"};
    const WindowPlacement placement = mainWindowPlacement(true, stored, false);
    EXPECT_EQ(placement.kind, WindowPlacement::Kind::Stored);
    EXPECT_EQ(placement.main.width, 1200); // truncated, not rounded
    EXPECT_EQ(placement.main.top, 60);
    EXPECT_EQ(placement.gradation.width, 300);
    EXPECT_EQ(mainWindowPlacement(true, stored, true).kind, WindowPlacement::Kind::Centre);

    stored[1] = "-5";
    EXPECT_EQ(mainWindowPlacement(true, stored, false).kind, WindowPlacement::Kind::CentreAndStore);
    EXPECT_EQ(mainWindowPlacement(true, {"1e30", "1e30"}, false).kind,
              WindowPlacement::Kind::CentreAndStore);
}

} // namespace
} // namespace orrery
