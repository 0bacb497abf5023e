#pragma once

#include "core/model/PlanetRecord.h"

#include <vector>

// Which of the planet panel's commands are offered. Each command switches its button and
// its menu items together, and the window asks for all of them at once whenever the system
// or the selection changed.
namespace orrery {

// The planet table's selection as the commands see it. An edit in the chosen row counts
// until another row is chosen.
enum class RowSelection { none, chosen, edited };

struct PanelCommands {
    bool deletePlanet = false;  // the Delete button and Planet > Delete
    bool showAll = false;       // the Show All box
    bool exportPicture = false; // the Export button, File > Export and File > Export Scene

    friend bool operator==(const PanelCommands&, const PanelCommands&) = default;
};

// Delete while a row is chosen and not edited since, so that a Return too many cannot
// delete the planet just edited; Show All while there is any planet; Export while at least
// one planet is shown.
PanelCommands panelCommands(const std::vector<PlanetRecord>& planets, RowSelection selection);

} // namespace orrery
