#include "cli/PackageJson.h"

#include <gtest/gtest.h>

namespace orrery::cli {
namespace {

using nlohmann::json;

// The JSON form of a small package, as convert writes it.
json sampleJson() {
    return json::parse(R"({
      "document": {"width": "960", "height": "540"},
      "background": "3",
      "camera": {"xfov": "45.0", "yfov": "60.0", "x": "1.500000", "y": "0.000000",
                 "z": "500.000000", "orthographic": "1", "zrange": "0"},
      "light": {"x": "0.000000", "y": "-20.250000", "z": "+100", "color": [1.0, 0.5, 0.25, 1.0]},
      "planets": [{"tsecs": "1424700000", "name": "Earth", "state": "1", "styleindex": "0",
                   "surfaceindex": "3", "xvalue": "0", "yvalue": "0", "zvalue": "0",
                   "radius": "24", "color": [0.0, 0.0, 1.0, 1.0]}],
      "checks": {"anything": "is ignored"}
    })");
}

std::string refusal(const json& value) {
    std::string error;
    EXPECT_FALSE(documentFromJsonText(value.dump(), error));
    return error;
}

TEST(PackageJson, ReadsEveryValue) {
    std::string error;
    const std::optional<ProjectDocument> document =
        documentFromJsonText(sampleJson().dump(), error);
    ASSERT_TRUE(document) << error;
    EXPECT_EQ(document->documentWidth, "960");
    EXPECT_EQ(document->background, 3);
    EXPECT_EQ(document->cameraSettings[1], "60.0");
    EXPECT_EQ(document->cameraSettings[6], "0");
    EXPECT_EQ(document->lightPosition[1], -20.25);
    EXPECT_EQ(document->lightPosition[2], 100.0);
    EXPECT_EQ(document->lightColor, (Color{1.0, 0.5, 0.25, 1.0}));
    ASSERT_EQ(document->planets.size(), 1u);
    EXPECT_EQ(document->planets[0].name, "Earth");
    EXPECT_EQ(document->planets[0].surfaceindex, "3");
    EXPECT_EQ(document->planets[0].color, kPureBlue);
}

TEST(PackageJson, RefusalsNameTheValue) {
    json noRadius = sampleJson();
    noRadius["planets"][0].erase("radius");
    EXPECT_EQ(refusal(noRadius), "planets[0] has no \"radius\"");

    json numberWidth = sampleJson();
    numberWidth["document"]["width"] = 960;
    EXPECT_EQ(refusal(numberWidth), "document.width must be text");

    json listCamera = sampleJson();
    listCamera["camera"] = json::array();
    EXPECT_EQ(refusal(listCamera), "camera must be an object");
}

TEST(PackageJson, ValuesThePackageCannotHoldAreRefused) {
    json wordLight = sampleJson();
    wordLight["light"]["x"] = "left";
    EXPECT_EQ(refusal(wordLight), "light.x must be a number, not \"left\"");

    json hugeLight = sampleJson();
    hugeLight["light"]["y"] = "1" + std::string(400, '0');
    EXPECT_EQ(refusal(hugeLight), "light.y is out of range");

    json fractionBackground = sampleJson();
    fractionBackground["background"] = "2.5";
    EXPECT_EQ(refusal(fractionBackground), "background must be a whole number, not \"2.5\"");

    json brightColour = sampleJson();
    brightColour["light"]["color"] = {1.0, 1.5, 0.0, 1.0};
    EXPECT_EQ(refusal(brightColour), "light.color must hold numbers from 0 to 1");
}

TEST(PackageJson, ValuesThatFailOpeningChecksAreKept) {
    // A package may hold what the window would refuse to apply; convert keeps it as it is.
    json odd = sampleJson();
    odd["document"]["width"] = "100";
    odd["background"] = "7";
    odd["camera"]["xfov"] = "wide";
    std::string error;
    const std::optional<ProjectDocument> document = documentFromJsonText(odd.dump(), error);
    ASSERT_TRUE(document) << error;
    EXPECT_EQ(document->documentWidth, "100");
    EXPECT_EQ(document->background, 7);
    EXPECT_EQ(document->cameraSettings[0], "wide");
}

TEST(PackageJson, BrokenOrHostileJson) {
    std::string error;
    EXPECT_FALSE(documentFromJsonText("{\"document\": ", error));
    EXPECT_EQ(error.rfind("not valid JSON: ", 0), 0u) << error;
    EXPECT_NE(error.find("line 1"), std::string::npos) << error;

    EXPECT_FALSE(documentFromJsonText("[1, 2]", error));
    EXPECT_EQ(error, "the package must be a JSON object");

    // Deep nesting is refused before it is built.
    const std::string deep = std::string(100000, '[') + std::string(100000, ']');
    EXPECT_FALSE(documentFromJsonText(deep, error));
    EXPECT_EQ(error, "the JSON is nested too deeply for a package");
}

TEST(PackageJson, WritesTheSchemaInOrderWithChecks) {
    OpenedProject project;
    project.settings = {"960",        "540", "9", "45.0", "45.0", "0.000000", "0.000000",
                        "500.000000", "1",   "0", "1.0",  "2.0",  "3.0"};
    project.checks.width = project.checks.height = true;
    project.checks.camera = true;
    project.checks.lightFields = {true, false, true};
    project.planets = {newPlanetRecord("7", "Seven")};
    const nlohmann::ordered_json withChecks = packageJson(project, true);
    std::vector<std::string> keys;
    for (const auto& item : withChecks.items())
        keys.push_back(item.key());
    EXPECT_EQ(keys, (std::vector<std::string>{"document", "background", "camera", "light",
                                              "planets", "checks"}));
    EXPECT_EQ(withChecks["background"], "9");
    EXPECT_EQ(withChecks["camera"]["zrange"], "0");
    EXPECT_EQ(withChecks["light"]["z"], "3.0");
    EXPECT_EQ(withChecks["planets"][0]["name"], "Seven");
    EXPECT_EQ(withChecks["planets"][0].size(), 10u); // value1 to value5 are not part of it
    EXPECT_EQ(withChecks["checks"]["background"], false);
    EXPECT_EQ(withChecks["checks"]["camera"], true);
    EXPECT_EQ(withChecks["checks"]["light"], nlohmann::ordered_json({true, false, true}));
    EXPECT_FALSE(packageJson(project, false).contains("checks"));
}

} // namespace
} // namespace orrery::cli
