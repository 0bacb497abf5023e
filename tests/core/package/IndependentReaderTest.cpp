// Packages written by another implementation (Python's plistlib, in the NSKeyedArchiver
// layout) must read correctly, and ours must read correctly there.
#include "PackageTestSupport.h"

#include "core/package/ProjectPackage.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <fstream>

namespace orrery {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

const fs::path kFixtures = ORRERY_PACKAGE_FIXTURES;

json manifest() {
    return json::parse(std::ifstream(kFixtures / "manifest.json"));
}

Color colorOf(const json& rgba) {
    return {rgba[0].get<double>(), rgba[1].get<double>(), rgba[2].get<double>(),
            rgba[3].get<double>()};
}

PlanetRecord recordOf(const json& stored) {
    PlanetRecord record;
    for (std::size_t i = 0; i < kPlanetKeyCount; ++i) {
        const auto key = static_cast<PlanetKey>(i);
        const json& value = stored.at(std::string(keyName(key)));
        if (std::string* text = record.text(key))
            *text = value.get<std::string>();
        else
            record.color = colorOf(value);
    }
    return record;
}

TEST(IndependentPackages, ReadAsTheirWriterMeantThem) {
    for (const json& c : manifest()) {
        if (!c.contains("expect"))
            continue;
        const std::string name = c["package"];
        SCOPED_TRACE(name);
        const json& expect = c["expect"];
        OpenedProject project;
        std::string error;
        ASSERT_TRUE(readProjectPackage(kFixtures / name, project, error)) << error;
        EXPECT_EQ(json(project.settings), expect["settings"]);
        EXPECT_EQ(project.lightColor, colorOf(expect["lightColor"]));
        ASSERT_EQ(project.planets.size(), expect["planets"].size());
        for (std::size_t i = 0; i < project.planets.size(); ++i)
            EXPECT_EQ(project.planets[i], recordOf(expect["planets"][i])) << "planet " << i;
        const ProjectChecks& checks = project.checks;
        EXPECT_EQ(json({{"width", checks.width},
                        {"height", checks.height},
                        {"background", checks.background},
                        {"camera", checks.camera},
                        {"cameraFields", checks.cameraFields},
                        {"light", checks.light},
                        {"lightFields", checks.lightFields}}),
                  expect["checks"]);
        EXPECT_EQ(project.orthographic, expect["orthographic"]);
        EXPECT_EQ(project.zRange, expect["zRange"]);
    }
}

TEST(IndependentPackages, BrokenOnesGiveOneErrorNamingTheFile) {
    for (const json& c : manifest()) {
        if (!c.contains("error"))
            continue;
        const std::string name = c["package"];
        SCOPED_TRACE(name);
        OpenedProject project;
        std::string error;
        EXPECT_FALSE(readProjectPackage(kFixtures / name, project, error));
        const std::string file = (kFixtures / name / c["error"]["file"]).string() + ": ";
        EXPECT_TRUE(error.starts_with(file)) << error;
        EXPECT_NE(error.find(c["error"]["contains"].get<std::string>()), std::string::npos)
            << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
        EXPECT_TRUE(project.planets.empty());
    }
}

TEST(IndependentPackages, OursReadByTheOtherReader) {
    test::TemporaryFolder folder;
    const fs::path package = folder.path() / "Ours.kvx";
    const ProjectDocument document = test::sampleDocument(30);
    std::string error;
    ASSERT_TRUE(writeProjectPackage(package, document, error)) << error;

    const std::string command = std::string(ORRERY_PYTHON) + " " + ORRERY_PACKAGE_SCRIPT +
                                " dump '" + package.string() + "'";
    FILE* pipe = ::popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string output;
    char buffer[4096];
    while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, pipe))
        output.append(buffer, got);
    ASSERT_EQ(::pclose(pipe), 0) << output;
    const json dumped = json::parse(output);

    EXPECT_EQ(dumped["settings"].size(), setting::count);
    EXPECT_EQ(dumped["settings"][0], document.documentWidth);
    EXPECT_EQ(dumped["settings"][12], "100.000000");
    ASSERT_EQ(dumped["lightColors"].size(), 5u);
    for (const json& color : dumped["lightColors"])
        EXPECT_EQ(colorOf(color), document.lightColor);
    ASSERT_EQ(dumped["planets"].size(), document.planets.size());
    for (std::size_t i = 0; i < document.planets.size(); ++i)
        EXPECT_EQ(recordOf(dumped["planets"][i]), document.planets[i]) << "planet " << i;
}

} // namespace
} // namespace orrery
