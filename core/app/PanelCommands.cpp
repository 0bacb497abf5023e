#include "core/app/PanelCommands.h"

#include "core/export/ExportChoices.h"

namespace orrery {

PanelCommands panelCommands(const std::vector<PlanetRecord>& planets, RowSelection selection) {
    return {selection == RowSelection::chosen, !planets.empty(), canExport(planets)};
}

} // namespace orrery
