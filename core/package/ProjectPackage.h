#pragma once

#include "core/package/FolderReplace.h"
#include "core/package/ProjectDocument.h"

#include <filesystem>
#include <string>

// Project packages: a folder "<name>.kvx" holding "data1.xml" (the planet list),
// "data2.xml" (the settings list) and "data3.xml" (the light colour list).
namespace orrery {

inline constexpr const char* kPlanetListFile = "data1.xml";
inline constexpr const char* kSettingsListFile = "data2.xml";
inline constexpr const char* kLightColorFile = "data3.xml";

// Reads the whole package and runs the opening checks on its settings. On failure
// `project` is untouched and `error` is one line naming the file and the problem, such as
// "/home/ann/Sun.kvx/data1.xml: planet record 3 has no "radius"". Document size, camera
// and light values that fail their checks are no failure: they come back marked in
// `project.checks`.
bool readProjectPackage(const std::filesystem::path& path, OpenedProject& project,
                        std::string& error);

// Writes the document as a package at `path`, replacing whatever stood there only once
// the new package is complete on disk. On failure the old package is untouched and
// `error` names the path and the problem (a full disk, a folder without write
// permission, a system too large to save). `hooks` is for tests.
bool writeProjectPackage(const std::filesystem::path& path, const ProjectDocument& document,
                         std::string& error, const FolderReplaceHooks& hooks = {});

} // namespace orrery
