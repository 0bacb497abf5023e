#include "core/package/PackageJson.h"

#include <gtest/gtest.h>

namespace orrery {
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

TEST(PackageJson, ReadsEveryValue_AndKeepsValuesThatFailOpeningChecks) {
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
    EXPECT_EQ(document->cameraSettings,
              (std::array<std::string, 7>{"wide", "60.0", "1.500000", "0.000000", "500.000000", "1",
                                          "0"}));
    EXPECT_EQ(document->lightPosition, (std::array<double, 3>{0.0, -20.25, 100.0}));
    EXPECT_EQ(document->lightColor, (Color{1.0, 0.5, 0.25, 1.0}));
    ASSERT_EQ(document->planets.size(), 1u);
    EXPECT_EQ(document->planets[0].name, "Earth");
    EXPECT_EQ(document->planets[0].surfaceindex, "3");
    EXPECT_EQ(document->planets[0].color, kPureBlue);
}

TEST(PackageJson, RefusalsNameTheValue) {
    const struct {
        const char* pointer;
        json value; // null: the member is left out
        const char* message;
    } cases[] = {
        {"/planets/0/radius", nullptr, "planets[0] has no \"radius\""},
        {"/document/width", 960, "document.width must be text"},
        {"/camera", json::array(), "camera must be an object"},
        {"/light/x", "left", "light.x must be a number, not \"left\""},
        {"/light/y", "1" + std::string(400, '0'), "light.y is out of range"},
        {"/background", "2.5", "background must be a whole number, not \"2.5\""},
        {"/background", "1\n2", "background must be a whole number, not \"1\\n2\""},
        {"/light/color", {1.0, 1.5, 0.0, 1.0}, "light.color must hold numbers from 0 to 1"},
        // The settings list is XML, which cannot carry the NUL.
        {"/camera/zrange", std::string("1\0", 2),
         "camera.zrange holds a NUL character, which a package cannot store"},
    };
    for (const auto& c : cases) {
        json value = sampleJson();
        const json::json_pointer pointer(c.pointer);
        if (c.value.is_null())
            value[pointer.parent_pointer()].erase(pointer.back());
        else
            value[pointer] = c.value;
        std::string error;
        EXPECT_FALSE(documentFromJsonText(value.dump(), error)) << c.pointer;
        EXPECT_EQ(error, c.message);
    }
}

TEST(PackageJson, BrokenOrHostileJson) {
    std::string error;
    EXPECT_FALSE(documentFromJsonText("{\"document\": ", error));
    EXPECT_EQ(error.rfind("not valid JSON: ", 0), 0u) << error;
    EXPECT_NE(error.find("line 1"), std::string::npos) << error;

    // A number beyond a double's range is refused like a syntax error, not thrown out of the
    // reader.
    EXPECT_FALSE(documentFromJsonText(R"({"background": 1e400})", error));
    EXPECT_EQ(error, "not valid JSON: number overflow parsing '1e400'");

    EXPECT_FALSE(documentFromJsonText("[1, 2]", error));
    EXPECT_EQ(error, "the package must be a JSON object");

    // Deep nesting is refused before it is built.
    const std::string deep = std::string(100000, '[') + std::string(100000, ']');
    EXPECT_FALSE(documentFromJsonText(deep, error));
    EXPECT_EQ(error, "the JSON is nested too deeply for a package");
}

} // namespace
} // namespace orrery
