#include "core/app/PanelCommands.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

std::vector<PlanetRecord> planetsWithStates(std::initializer_list<const char*> states) {
    std::vector<PlanetRecord> planets;
    for (const char* state : states) {
        planets.push_back(newPlanetRecord(std::to_string(planets.size()), "Planet"));
        planets.back().state = state;
    }
    return planets;
}

TEST(PanelCommands, FollowTheSystemAndTheSelection) {
    struct Case {
        std::initializer_list<const char*> states;
        RowSelection selection;
        PanelCommands expected; // delete, show all, export
    };
    const Case cases[] = {
        {{}, RowSelection::none, {false, false, false}},
        {{"1"}, RowSelection::none, {false, true, true}},
        {{"1"}, RowSelection::chosen, {true, true, true}},
        // An edit takes Delete away until another row is chosen.
        {{"1"}, RowSelection::edited, {false, true, true}},
        // Only a shown planet ("1" exactly) can be exported; hidden ones still show all.
        {{"0", "0"}, RowSelection::chosen, {true, true, false}},
        {{"0", "1 "}, RowSelection::none, {false, true, false}},
        {{"0", "0", "1"}, RowSelection::none, {false, true, true}},
    };
    for (const Case& c : cases) {
        const PanelCommands commands = panelCommands(planetsWithStates(c.states), c.selection);
        EXPECT_EQ(commands.deletePlanet, c.expected.deletePlanet) << c.states.size();
        EXPECT_EQ(commands.showAll, c.expected.showAll) << c.states.size();
        EXPECT_EQ(commands.exportPicture, c.expected.exportPicture) << c.states.size();
    }
}

} // namespace
} // namespace orrery
