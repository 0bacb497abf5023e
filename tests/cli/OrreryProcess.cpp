#include "tests/cli/OrreryProcess.h"

#include "core/package/ProjectPackage.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace orrery::testing {

int Outcome::errLines() const {
    return static_cast<int>(std::count(err.begin(), err.end(), '\n'));
}

Outcome runOrrery(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << QString::fromStdString(argument);
    QProcess process;
    process.start(ORRERY_EXECUTABLE, list);
    process.waitForFinished(-1); // no time limit: the machine may be busy
    Outcome run;
    run.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput().toStdString();
    run.err = process.readAllStandardError().toStdString();
    return run;
}

ProjectDocument sampleDocument(long background) {
    ProjectDocument document;
    document.documentWidth = "640";
    document.documentHeight = "360";
    document.background = background;
    document.cameraSettings = {"45.0", "45.0", "0.000000", "0.000000", "500.000000", "1", "1"};
    document.lightPosition = {100.0, 100.0, 300.0};
    PlanetRecord shown = newPlanetRecord("1424700000", "Shown");
    shown.radius = "40";
    shown.surfaceindex = "3";
    PlanetRecord hidden = newPlanetRecord("1424700001", "Hidden");
    hidden.state = "0";
    hidden.xvalue = "150";
    document.planets = {shown, hidden};
    return document;
}

void writePackage(const std::string& path, const ProjectDocument& document) {
    std::string error;
    ASSERT_TRUE(writeProjectPackage(path, document, error)) << error;
}

std::string fileText(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace orrery::testing
