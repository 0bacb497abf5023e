#include "core/package/ProjectPackage.h"
#include "tests/cli/OrreryProcess.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>

namespace orrery::testing {
namespace {

namespace fs = std::filesystem;

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
    EXPECT_EQ(json["checks"], nlohmann::json::parse(R"({"width": false, "height": true,
        "background": false, "camera": true, "light": [true, true, true]})"));
    EXPECT_EQ(json["planets"].size(), 2u);
}

TEST(Convert, FailuresGiveTheirStatusOneLineAndWriteNothing) {
    QTemporaryDir folder;
    const std::string good = in(folder, "good.kvx");
    writePackage(good, sampleDocument(0));
    const std::string json = in(folder, "good.json");
    ASSERT_EQ(runOrrery({"convert", good, json}).status, 0);
    const std::string broken = in(folder, "broken.kvx");
    writePackage(broken, sampleDocument(0));
    std::ofstream(fs::path(broken) / "data1.xml", std::ios::trunc) << "bplist00 and then nothing";
    std::ofstream(in(folder, "broken.json")) << "{\"document\": {\"width\": \"960\"";
    std::ofstream(in(folder, "plain")) << "a file, not a folder";

    const std::pair<std::vector<std::string>, int> runs[] = {
        {{"convert", broken, in(folder, "out.json")}, 2},
        {{"convert", in(folder, "broken.json"), in(folder, "out.kvx")}, 2},
        {{"convert", in(folder, "missing.json"), in(folder, "out.kvx")}, 2},
        {{"info", broken}, 2},
        {{"info", in(folder, "missing.kvx")}, 2},
        {{"convert", good, in(folder, "plain/out.json")}, 3},
        {{"convert", json, in(folder, "plain/out.kvx")}, 3},
    };
    for (const auto& [arguments, status] : runs) {
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, status) << arguments[1] << ": " << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_FALSE(fs::exists(in(folder, "out.json")));
    EXPECT_FALSE(fs::exists(in(folder, "out.kvx")));
}

} // namespace
} // namespace orrery::testing
