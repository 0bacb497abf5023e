#include "core/package/ProjectPackage.h"
#include "tests/cli/OrreryProcess.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace orrery::testing {
namespace {

namespace fs = std::filesystem;

std::string fileText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string in(const QTemporaryDir& folder, const char* name) {
    return folder.filePath(name).toStdString();
}

TEST(Convert, ExamplesSurviveTheRoundTripByteForByte) {
    // The examples are written as convert writes, so JSON -> package -> JSON must give
    // back the very same text, including colours as read back from the archive.
    QTemporaryDir folder;
    int examples = 0;
    for (const auto& entry : fs::directory_iterator(ORRERY_EXAMPLES_DIR)) {
        if (entry.path().extension() != ".json")
            continue;
        ++examples;
        const std::string package = in(folder, "system.kvx");
        const std::string json = in(folder, "system.json");
        ASSERT_EQ(runOrrery({"convert", entry.path().string(), package}).status, 0) << entry.path();
        const Outcome back = runOrrery({"convert", package, json});
        ASSERT_EQ(back.status, 0) << back.err;
        EXPECT_EQ(fileText(json), fileText(entry.path())) << entry.path();
    }
    EXPECT_GE(examples, 3);
}

TEST(Convert, InfoAddsTheChecks) {
    QTemporaryDir folder;
    ProjectDocument document = sampleDocument(7);
    document.documentWidth = "400"; // at the limit, refused
    writePackage(in(folder, "odd.kvx"), document);
    const Outcome run = runOrrery({"info", in(folder, "odd.kvx")});
    ASSERT_EQ(run.status, 0) << run.err;
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["document"]["width"], "400");
    EXPECT_EQ(json["background"], "7");
    EXPECT_EQ(json["checks"]["width"], false);
    EXPECT_EQ(json["checks"]["height"], true);
    EXPECT_EQ(json["checks"]["background"], false);
    EXPECT_EQ(json["checks"]["camera"], true);
    EXPECT_EQ(json["checks"]["light"], nlohmann::json({true, true, true}));
    EXPECT_EQ(json["planets"].size(), 2u);
}

TEST(Convert, BrokenInputGivesStatusTwoAndWritesNothing) {
    QTemporaryDir folder;
    const std::string package = in(folder, "broken.kvx");
    writePackage(package, sampleDocument(0));
    std::ofstream(fs::path(package) / "data1.xml", std::ios::trunc) << "bplist00 and then nothing";
    std::ofstream(in(folder, "broken.json")) << "{\"document\": {\"width\": \"960\"";

    const std::vector<std::vector<std::string>> runs = {
        {"convert", package, in(folder, "out.json")},
        {"convert", in(folder, "broken.json"), in(folder, "out.kvx")},
        {"convert", in(folder, "missing.json"), in(folder, "out.kvx")},
        {"info", package},
        {"info", in(folder, "missing.kvx")},
    };
    for (const auto& arguments : runs) {
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 2) << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_FALSE(fs::exists(in(folder, "out.json")));
    EXPECT_FALSE(fs::exists(in(folder, "out.kvx")));
}

TEST(Convert, UnwritableOutputGivesStatusThree) {
    QTemporaryDir folder;
    const std::string package = in(folder, "good.kvx");
    writePackage(package, sampleDocument(0));
    std::ofstream(in(folder, "plain")) << "a file, not a folder";
    const std::string json = in(folder, "good.json");
    ASSERT_EQ(runOrrery({"convert", package, json}).status, 0);

    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"convert", package, in(folder, "plain/out.json")},
                                               {"convert", json, in(folder, "plain/out.kvx")}}) {
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 3) << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
    }
}

} // namespace
} // namespace orrery::testing
