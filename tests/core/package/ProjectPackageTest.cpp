#include "PackageTestSupport.h"

#include "core/package/PackageFiles.h"
#include "core/package/ProjectPackage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace orrery {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

const std::vector<std::string> kPackageFiles{"data1.xml", "data2.xml", "data3.xml"};

// Reads the package, expects it to hold exactly `document` and gives what was read.
OpenedProject expectPackageHolds(const fs::path& path, const ProjectDocument& document) {
    OpenedProject project;
    std::string error;
    EXPECT_TRUE(readProjectPackage(path, project, error)) << error;
    EXPECT_EQ(namesIn(path), kPackageFiles);
    EXPECT_EQ(project.settings[setting::width], document.documentWidth);
    EXPECT_EQ(project.lightColor, document.lightColor);
    EXPECT_EQ(project.planets.size(), document.planets.size());
    for (std::size_t i = 0; i < std::min(project.planets.size(), document.planets.size()); ++i) {
        PlanetRecord expected = document.planets[i];
        expected.reserved = {"0", "0", "0", "0", "0"};
        if (project.planets[i] != expected)
            ADD_FAILURE() << "planet " << i << " differs";
    }
    return project;
}

class ProjectPackage : public ::testing::Test {
protected:
    test::TemporaryFolder folder;
    fs::path package = folder.path() / "System.kvx";
    ProjectDocument oldDocument = test::sampleDocument(3);
    ProjectDocument newDocument = test::sampleDocument(40);

    void SetUp() override { newDocument.documentWidth = "2000"; }

    void save(const ProjectDocument& document, const FolderReplaceHooks& hooks = {}) {
        std::string error;
        ASSERT_TRUE(writeProjectPackage(package, document, error, hooks)) << error;
    }
    void expectOnlyThePackage() const {
        EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"System.kvx"});
    }
};

TEST_F(ProjectPackage, RoundTripOfManyPlanetsKeepsEveryValue) {
    const ProjectDocument document = test::sampleDocument(5000);
    save(document);
    const OpenedProject project = expectPackageHolds(package, document);
    const std::array<std::string, setting::readCount> settings{
        "1280",       "720", "4", "45.0",     "60.0",      "-10.500000", "3.250000",
        "750.000000", "0",   "1", "1.500000", "-2.250000", "100.000000"};
    EXPECT_EQ(project.settings, settings);
    EXPECT_TRUE(project.checks.width && project.checks.height && project.checks.background &&
                project.checks.camera && project.checks.light);
    EXPECT_FALSE(project.orthographic);
    EXPECT_TRUE(project.zRange);
}

TEST_F(ProjectPackage, SavingOverAPackageReplacesItWhole_WithOrWithoutAtomicExchange) {
    for (const bool withoutExchange : {false, true}) {
        SCOPED_TRACE(withoutExchange ? "without exchange" : "with exchange");
        save(oldDocument);
        std::ofstream(package / "notes.txt") << "not part of a package";
        fs::create_directory(package / "extra");
        FolderReplaceHooks hooks;
        hooks.withoutExchange = withoutExchange;
        save(newDocument, hooks);
        expectPackageHolds(package, newDocument);
        expectOnlyThePackage();
    }
    // A plain file where the package goes is replaced as well.
    fs::remove_all(package);
    std::ofstream(package) << "a file";
    save(newDocument);
    expectPackageHolds(package, newDocument);
}

TEST_F(ProjectPackage, FailureAfterStagingLeavesTheOldPackageAndNoLeftovers) {
    save(oldDocument);
    FolderReplaceHooks hooks;
    fs::path staged;
    hooks.afterStaging = [&](const fs::path& staging, std::string& error) {
        staged = staging;
        EXPECT_EQ(namesIn(staging), kPackageFiles); // complete before anything is replaced
        error = "No space left on device";
        return false;
    };
    std::string error;
    EXPECT_FALSE(writeProjectPackage(package, newDocument, error, hooks));
    EXPECT_EQ(error, "Could not save " + package.string() + ": No space left on device");
    expectPackageHolds(package, oldDocument);
    EXPECT_FALSE(fs::exists(staged));
    expectOnlyThePackage();
}

using ProjectPackageDeathTest = ProjectPackage;

// The save runs in a forked child that dies once the new package is staged; the child
// works in this test's folder, which the parent removes.
TEST_F(ProjectPackageDeathTest, SaveKilledAfterStagingLeavesTheOldPackageIntact) {
    save(oldDocument);
    FolderReplaceHooks hooks;
    hooks.afterStaging = [](const fs::path&, std::string&) -> bool {
        ::_exit(3);
    };
    EXPECT_EXIT(
        {
            std::string error;
            writeProjectPackage(package, newDocument, error, hooks);
        },
        ::testing::ExitedWithCode(3), "");
    expectPackageHolds(package, oldDocument);
    // The next save to that place clears what the killed one left; a neighbour's stays.
    const fs::path neighbours = package.parent_path() / ".orrery-save-Other.kvx-0123456789abcdef";
    fs::create_directory(neighbours);
    save(newDocument);
    expectPackageHolds(package, newDocument);
    fs::remove(neighbours);
    expectOnlyThePackage();
}

TEST_F(ProjectPackage, SaveErrorsNameThePathAndTheProblem) {
    std::string error;
    const fs::path nowhere = folder.path() / "missing" / "System.kvx";
    EXPECT_FALSE(writeProjectPackage(nowhere, newDocument, error));
    EXPECT_EQ(error, "Could not save " + nowhere.string() + ": the folder " +
                         nowhere.parent_path().string() + " does not exist");
    std::ofstream(folder.path() / "file") << "x";
    EXPECT_FALSE(writeProjectPackage(folder.path() / "file" / "System.kvx", newDocument, error));
    EXPECT_NE(error.find("file is not a folder"), std::string::npos) << error;
    EXPECT_FALSE(fs::exists(package));

    // A full disk, as /dev/full reports it.
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(full, 0);
    EXPECT_FALSE(writeAll(full, "data", error));
    EXPECT_EQ(error, "No space left on device");
    ::close(full);
}

TEST_F(ProjectPackage, UnreadablePackagesGiveOneErrorAndLeaveTheProjectAlone) {
    OpenedProject project;
    project.settings[0] = "untouched";
    std::string error;
    EXPECT_FALSE(readProjectPackage(package, project, error));
    EXPECT_EQ(error, package.string() + ": no such package");
    std::ofstream(package) << "x";
    EXPECT_FALSE(readProjectPackage(package, project, error));
    EXPECT_EQ(error, package.string() + ": not a package (a package is a folder)");
    fs::remove(package);

    save(oldDocument);
    fs::remove(package / "data1.xml");
    fs::create_directory(package / "data1.xml");
    EXPECT_FALSE(readProjectPackage(package, project, error));
    EXPECT_EQ(error, (package / "data1.xml").string() + ": it is a folder, not a file");
    // A named pipe must not block the reader waiting for a writer.
    fs::remove(package / "data2.xml");
    ASSERT_EQ(::mkfifo((package / "data2.xml").c_str(), 0600), 0);
    EXPECT_FALSE(readProjectPackage(package, project, error));
    EXPECT_EQ(error, (package / "data2.xml").string() + ": it is not a regular file");
    EXPECT_EQ(project.settings[0], "untouched");
}

TEST(PackageFiles, ReadingStopsAtTheBound) {
    test::TemporaryFolder folder;
    const fs::path file = folder.path() / "data";
    std::ofstream(file) << std::string(1000, 'x');
    std::string bytes;
    std::string error;
    EXPECT_TRUE(readFileBounded(file, 1000, bytes, error)) << error;
    EXPECT_EQ(bytes.size(), 1000u);
    EXPECT_FALSE(readFileBounded(file, 999, bytes, error));
    EXPECT_EQ(error, "the file is larger than 999 bytes");
}

} // namespace
} // namespace orrery
