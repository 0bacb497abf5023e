#pragma once

#include "core/package/ProjectDocument.h"

#include <array>
#include <string>
#include <vector>

// The project settings list, "data2.xml": an XML property list whose root is an array of
// 31 texts (document size, background, camera, light position, 18 reserved "0").
namespace orrery {

std::vector<std::string> projectSettingsList(const ProjectDocument& document);

// The list as an XML property list; fails only when it exceeds kSettingsListLimits.
bool encodeProjectSettings(const std::vector<std::string>& settings, std::string& bytes,
                           std::string& error);

// Elements 0 to 12 of a stored list. A list that is not an array, holds fewer than 13
// elements or has anything but text among them cannot be opened.
bool decodeProjectSettings(const std::string& bytes,
                           std::array<std::string, setting::readCount>& settings,
                           std::string& error);

// The document sizes a package may carry: whole numbers, width 401 to 6400 and height 301
// to 6400, wider limits than typing allows.
bool isPackageWidth(const std::string& text);
bool isPackageHeight(const std::string& text);

// The checks opening runs on elements 0 to 12.
ProjectChecks checkProjectSettings(const std::array<std::string, setting::readCount>& settings);

// Fills in the checks and the camera switches from `project.settings`, as opening does.
void checkOpenedSettings(OpenedProject& project);

// What opening a package written from `document` gives, without the package.
OpenedProject openedProject(const ProjectDocument& document);

} // namespace orrery
