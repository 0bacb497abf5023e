#include "core/edit/PlanetRows.h"
#include "core/edit/SystemEditor.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace orrery {
namespace {

// Planets whose names hold everything that needs quoting, colours in whole bytes.
std::vector<PlanetRecord> awkwardPlanets() {
    std::vector<PlanetRecord> planets;
    const char* names[] = {"Plain", "Comma, and \"quotes\"", "Two\nlines", "Tab\there", "Ærø ☉"};
    for (std::size_t i = 0; i < std::size(names); ++i) {
        PlanetRecord p = newPlanetRecord("", names[i]);
        p.state = i % 2 ? "0" : "1";
        p.styleindex = std::to_string(i * 20);
        p.surfaceindex = std::to_string(i * 12);
        p.xvalue = "-" + std::to_string(i) + ".5";
        p.yvalue = "+.25";
        p.zvalue = "0";
        p.radius = "0.1";
        p.color = {static_cast<double>(i * 60) / 255.0, 1.0, 0.0, 1.0};
        planets.push_back(p);
    }
    return planets;
}

TEST(PlanetRows, WrittenRowsReadBackEqual_AsTabsAndAsCommas) {
    const std::vector<PlanetRecord> planets = awkwardPlanets();
    for (RowFormat format : {RowFormat::tabs, RowFormat::commas}) {
        const std::string text = writePlanetRows(planets, format);
        const ReadRows read = readPlanetRows(text, format);
        EXPECT_TRUE(read.refused.empty()) << refusedRowList(read.refused);
        EXPECT_EQ(read.planets, planets);
    }
    EXPECT_EQ(writePlanetRows({planets[1]}, RowFormat::commas),
              "name,shown,style,surface,x,y,z,radius,colour\r\n"
              "\"Comma, and \"\"quotes\"\"\",0,20,12,-1.5,+.25,0,0.1,#3cff00\r\n");
}

TEST(PlanetRows, PythonsCsvImportsExactly) {
    // An independent writer: Python's csv module, quoting only where it must.
    const std::string script = ::testing::TempDir() + "planet_rows.py";
    std::FILE* file = std::fopen(script.c_str(), "w");
    ASSERT_NE(file, nullptr);
    std::fputs(R"(import csv, sys
w = csv.writer(sys.stdout)
w.writerow(["Colour", "Name", "radius"])
w.writerow(["#ff0080", 'Comma, "quoted"\nand a second line', "2.5"])
w.writerow(["#000000", "Plain", "7"])
)",
               file);
    std::fclose(file);
    FILE* pipe = ::popen(("python3 " + script).c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string csv;
    char buffer[256];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        csv.append(buffer, n);
    ASSERT_EQ(::pclose(pipe), 0);

    const ReadRows read = readPlanetRows(csv, RowFormat::commas);
    ASSERT_EQ(read.planets.size(), 2u) << csv;
    EXPECT_EQ(read.planets[0].name, "Comma, \"quoted\"\nand a second line");
    EXPECT_EQ(read.planets[0].radius, "2.5");
    EXPECT_EQ(read.planets[0].color, (Color{1.0, 0.0, 128.0 / 255.0, 1.0}));
    // Columns the file lacks take a new planet's values.
    EXPECT_EQ(read.planets[1].xvalue, "0");
    EXPECT_EQ(read.planets[1].state, "1");
}

TEST(PlanetRows, RefusedRowsAreReportedAndTheOthersKept) {
    const ReadRows read = readPlanetRows("name\tradius\tstyle\tcolour\n"
                                         "Good\t5\t82\t#010203\n"
                                         "Bad\t-5\t1\t#010203\n"
                                         "\n"
                                         "   \t5\t1\t#010203\n"
                                         "Style\t5\t83\t#010203\n"
                                         "Hue\t5\t1\tred\n"
                                         "Also good\t0.1\t0\t#ffffff",
                                         RowFormat::tabs);
    ASSERT_EQ(read.planets.size(), 2u);
    EXPECT_EQ(read.planets[1].name, "Also good");
    EXPECT_EQ(refusedRowList(read.refused), "3 (radius), 5 (name), 6 (style), 7 (colour)");
    EXPECT_EQ(refusedRowList(readPlanetRows("Earth\t5\n", RowFormat::tabs).refused), "1 (header)");
}

TEST(PlanetRows, PastedPlanetsGetFreshIdentitiesAndUndoAsOneStep) {
    PlanetList planets;
    SceneView scene;
    SystemEditor editor{planets, scene};
    editor.createPlanet("1000", "There");
    editor.createPlanet("1002", "Also");
    std::vector<PlanetRecord> pasted = awkwardPlanets();
    const std::vector<std::string> identities = freshIdentities(planets, 1000, pasted.size());
    EXPECT_EQ(identities, (std::vector<std::string>{"1001", "1003", "1004", "1005", "1006"}));
    for (std::size_t i = 0; i < pasted.size(); ++i)
        pasted[i].tsecs = identities[i];
    editor.appendPlanets(pasted);
    ASSERT_EQ(planets.size(), 7u);
    EXPECT_EQ(planets.at(6), pasted.back());
    editor.undo();
    EXPECT_EQ(planets.size(), 2u);
    editor.redo();
    EXPECT_EQ(planets.size(), 7u);
}

} // namespace
} // namespace orrery
