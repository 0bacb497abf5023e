#pragma once

#include "core/app/ScreenRect.h"
#include "core/model/Color.h"
#include "core/model/PlanetList.h"

#include <string>
#include <vector>

namespace orrery {

// The controller's own state, apart from its views and controls: what the window owns for
// the life of the process. The settings lists live in Settings (core/settings/Settings.h).
struct AppState {
    std::string appName;
    std::string appVersion;

    std::vector<bool> menuArray; // saved enabled states of the menu items
    PlanetList planetArray;
    std::vector<std::string> styleArray;
    std::vector<std::string> surfaceArray;
    std::string projectpath; // empty for a system that was never saved

    bool canEnterFull = true;
    bool enteringFull = false;
    bool isPreferencesOpen = false;
    bool isCreatePlanetOpen = false;
    ScreenRect gradationFrame; // the gradation window's frame stored at start (Windows row 1)
    ScreenRect searchFrame;    // the search window's frame stored at start (Windows row 2)
    bool introductionWindowOpen = false;
    int currentPage = 1;
    long currentBackground = 0;
    bool axesHiden = false;
    Color lightColor = kWhite;
    bool popover4shown = false;
    bool popover5shown = false;
    int formatSelection = 0;
};

} // namespace orrery
