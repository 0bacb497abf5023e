#include "tests/cli/OrreryProcess.h"

#include <gtest/gtest.h>

#include <cstdlib>

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
}

TEST(CommandLine, WithoutADisplayTheWindowSaysSoInOneLine) {
    const char* display = std::getenv("DISPLAY");
    const std::string saved = display != nullptr ? display : "";
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    const Outcome run = runOrrery({});
    if (!saved.empty())
        ::setenv("DISPLAY", saved.c_str(), 1);
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_EQ(run.errLines(), 1) << run.err;
    EXPECT_NE(run.err.find("--help"), std::string::npos) << run.err;
}

} // namespace
} // namespace orrery::testing
