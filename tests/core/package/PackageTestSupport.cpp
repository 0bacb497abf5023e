#include "PackageTestSupport.h"

#include "core/model/TextNumber.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace orrery::test {

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orrery-package-XXXXXX");
    path_ = ::mkdtemp(pattern.data());
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

ProjectDocument sampleDocument(std::size_t planets) {
    ProjectDocument document;
    document.documentWidth = "1280";
    document.documentHeight = "720";
    document.background = 4;
    document.cameraSettings = {"45.0", "60.0", "-10.500000", "3.250000", "750.000000", "0", "1"};
    document.lightPosition = {1.5, -2.25, 100.0};
    document.lightColor = {0.75, 0.5, 0.25, 1.0};
    for (std::size_t i = 0; i < planets; ++i) {
        PlanetRecord planet =
            newPlanetRecord(std::to_string(1424700000 + i / 3),
                            (i % 7 == 0 ? "Ærø ☉ " : "Planet ") + std::to_string(i));
        planet.state = i % 4 == 0 ? "0" : "1";
        planet.styleindex = std::to_string(i % 82);
        planet.surfaceindex = std::to_string(i % 48);
        planet.xvalue = formatGeneral(static_cast<float>(i) * 1.5f - 400.0f);
        planet.yvalue = std::to_string(i % 100);
        planet.zvalue = "-" + std::to_string(i % 13) + ".25";
        planet.radius = std::to_string(1 + i % 60);
        planet.color = {static_cast<double>(i % 256) / 255.0, 1.0 / 3.0, 0.1,
                        i % 5 == 0 ? 0.5 : 1.0};
        planet.reserved = {"9", "8", "7", "6", std::to_string(i)}; // written, never read back
        document.planets.push_back(planet);
    }
    return document;
}

std::string rawBinaryPlist(const std::vector<std::string>& objects, std::uint8_t top) {
    std::string out = "bplist00";
    std::string table;
    for (const std::string& object : objects) {
        table.push_back(static_cast<char>(out.size()));
        out += object;
    }
    const auto tableAt = static_cast<char>(out.size());
    out += table;
    out.append(6, '\0');
    out += {1, 1};
    out.append(7, '\0');
    out.push_back(static_cast<char>(objects.size()));
    out.append(7, '\0');
    out.push_back(static_cast<char>(top));
    out.append(7, '\0');
    out.push_back(tableAt);
    return out;
}

std::string rawArray(const std::vector<std::uint8_t>& refs) {
    std::string out(1, static_cast<char>(0xA0 | refs.size()));
    out.append(refs.begin(), refs.end());
    return out;
}

std::string readWholeFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

} // namespace orrery::test
