#include "core/package/ProjectSettings.h"

#include "core/model/TextNumber.h"
#include "core/package/PropertyList.h"
#include "core/validate/CameraLightChecks.h"
#include "core/validate/Validators.h"

#include <algorithm>
#include <cstdint>

namespace orrery {
namespace {

// Document sizes a package may carry; wider than what can be typed, on purpose.
constexpr std::int64_t kMinWidthExclusive = 400;
constexpr std::int64_t kMinHeightExclusive = 300;
constexpr std::int64_t kMaxSide = 6400;

bool isSideWithin(const std::string& text, std::int64_t minExclusive) {
    if (!isInteger(text))
        return false;
    const std::int64_t value = integerValue(text);
    return value > minExclusive && value <= kMaxSide;
}

} // namespace

bool isPackageWidth(const std::string& text) {
    return isSideWithin(text, kMinWidthExclusive);
}

bool isPackageHeight(const std::string& text) {
    return isSideWithin(text, kMinHeightExclusive);
}

namespace {

bool isBackground(const std::string& text) {
    return text.size() == 1 && text[0] >= '0' && text[0] <= '5';
}

} // namespace

std::vector<std::string> projectSettingsList(const ProjectDocument& document) {
    std::vector<std::string> settings{document.documentWidth, document.documentHeight,
                                      std::to_string(document.background)};
    settings.insert(settings.end(), document.cameraSettings.begin(), document.cameraSettings.end());
    for (double coordinate : document.lightPosition)
        settings.push_back(formatF(coordinate));
    settings.resize(setting::count, "0");
    return settings;
}

bool encodeProjectSettings(const std::vector<std::string>& settings, std::string& bytes,
                           std::string& error) {
    const PlistPtr list(plist_new_array());
    for (const std::string& text : settings)
        plist_array_append_item(list.get(), plist_new_string(text.c_str()));
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(list.get(), &xml, &length);
    if (xml == nullptr) {
        error = "the settings list cannot be encoded";
        return false;
    }
    std::string encoded(xml, length);
    plist_to_xml_free(xml);
    if (encoded.size() > kSettingsListLimits.maxBytes) {
        error = "the settings list would take more than " +
                std::to_string(kSettingsListLimits.maxBytes) + " bytes";
        return false;
    }
    bytes = std::move(encoded);
    return true;
}

bool decodeProjectSettings(const std::string& bytes,
                           std::array<std::string, setting::readCount>& settings,
                           std::string& error) {
    const PlistPtr list = parsePropertyList(bytes, kSettingsListLimits, error);
    if (!list)
        return false;
    if (plist_get_node_type(list.get()) != PLIST_ARRAY) {
        error = "the settings list is not an array";
        return false;
    }
    const std::vector<plist_t> items = arrayItems(list.get());
    if (items.size() < setting::readCount) {
        error = "the settings list holds " + std::to_string(items.size()) + " elements; at least " +
                std::to_string(setting::readCount) + " are needed";
        return false;
    }
    for (std::size_t i = 0; i < setting::readCount; ++i) {
        const auto text = stringValue(items[i]);
        if (!text) {
            error = "element " + std::to_string(i) + " of the settings list is not text";
            return false;
        }
        settings[i] = std::string(*text);
    }
    return true;
}

ProjectChecks checkProjectSettings(const std::array<std::string, setting::readCount>& settings) {
    ProjectChecks checks;
    checks.width = isPackageWidth(settings[setting::width]);
    checks.height = isPackageHeight(settings[setting::height]);
    checks.background = isBackground(settings[setting::background]);
    const std::span<const std::string, setting::readCount> all(settings);
    const auto camera = checkCameraFields(all.subspan<setting::cameraXFov, cameraField::count>());
    checks.cameraFields = camera.valid;
    checks.camera = camera.all;
    const auto light = checkLightFields(all.subspan<setting::lightX, lightField::count>());
    checks.lightFields = light.valid;
    checks.light = light.all;
    return checks;
}

void checkOpenedSettings(OpenedProject& project) {
    project.checks = checkProjectSettings(project.settings);
    project.orthographic = project.settings[setting::orthographic] == "1";
    project.zRange = project.settings[setting::zRange] == "1";
}

OpenedProject openedProject(const ProjectDocument& document) {
    OpenedProject project;
    const std::vector<std::string> settings = projectSettingsList(document);
    std::copy_n(settings.begin(), setting::readCount, project.settings.begin());
    checkOpenedSettings(project);
    project.lightColor = document.lightColor;
    project.planets = document.planets;
    for (PlanetRecord& planet : project.planets)
        planet.reserved.fill("0");
    return project;
}

} // namespace orrery
