#include "tests/cli/OrreryProcess.h"

#include <gtest/gtest.h>

namespace orrery::testing {
namespace {

TEST(CommandLine, HelpAndVersion) {
    const Outcome help = runOrrery({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("orrery render PACKAGE.kvx -o FILE"), std::string::npos);
    EXPECT_EQ(help.err, "");
    const Outcome version = runOrrery({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, std::string("orrery ") + ORRERY_VERSION + "\n");
}

TEST(CommandLine, BadUsageIsOneLineAndStatusOne) {
    const std::vector<std::vector<std::string>> mistakes = {
        {}, // this build has no window to open without a verb
        {"--frobnicate"},
        {"info"},
        {"convert", "a.json"},
        {"convert", "a.json", "b.png"},
        {"render", "a.kvx"},
        {"render", "a.kvx", "-o", "a.png", "--quality", "101"},
        {"render", "a.kvx", "-o", "a.xyz"},
    };
    for (const auto& arguments : mistakes) {
        const Outcome run = runOrrery(arguments);
        EXPECT_EQ(run.status, 1) << run.err;
        EXPECT_EQ(run.errLines(), 1) << run.err;
        EXPECT_EQ(run.err.rfind("orrery: ", 0), 0u) << run.err;
    }
    EXPECT_NE(runOrrery({}).err.find("--help"), std::string::npos);
}

} // namespace
} // namespace orrery::testing
