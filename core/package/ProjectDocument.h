#pragma once

#include "core/model/Color.h"
#include "core/model/PlanetRecord.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace orrery {

// What a save writes into a project package.
struct ProjectDocument {
    std::string documentWidth; // the document-size fields' texts as typed
    std::string documentHeight;
    long background = 0;                       // 0 transparent ... 5 darkest navy blue
    std::array<std::string, 7> cameraSettings; // as the scene's getCameraSettings gives them
    std::array<double, 3> lightPosition{};     // stored with "%f"
    Color lightColor = kWhite;
    std::vector<PlanetRecord> planets;
};

// Positions in the project settings list ("data2.xml"): 31 texts, of which opening reads
// the first 13.
namespace setting {
inline constexpr std::size_t width = 0;
inline constexpr std::size_t height = 1;
inline constexpr std::size_t background = 2;
inline constexpr std::size_t cameraXFov = 3; // then y fov, camera x, y, z
inline constexpr std::size_t orthographic = 8;
inline constexpr std::size_t zRange = 9;
inline constexpr std::size_t lightX = 10; // then light y, z
inline constexpr std::size_t readCount = 13;
inline constexpr std::size_t count = 31;
} // namespace setting

// The outcome of the checks opening runs on the stored settings. A value that fails is
// not applied; the window shows it in red.
struct ProjectChecks {
    bool width = false;                 // a whole number, 400 < width <= 6400
    bool height = false;                // a whole number, 300 < height <= 6400
    bool background = false;            // exactly "0" ... "5"
    std::array<bool, 5> cameraFields{}; // x fov, y fov, x, y, z
    bool camera = false;                // all five pass: apply the camera
    std::array<bool, 3> lightFields{};  // x, y, z
    bool light = false;                 // all three pass: move the light
};

// What opening a package gives, read whole and checked before the window applies it.
struct OpenedProject {
    std::array<std::string, setting::readCount> settings; // elements 0..12 as stored
    ProjectChecks checks;
    bool orthographic = false; // element 8 is "1"
    bool zRange = false;       // element 9 is "1"
    Color lightColor = kWhite;
    std::vector<PlanetRecord> planets; // "value1" to "value5" are "0", whatever was stored
};

} // namespace orrery
