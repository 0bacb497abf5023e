#pragma once

namespace orrery::window {
class AppDelegate;
}

namespace orrery::bench {

// Appends `count` planets through the system editor, each created as the creation sheet
// creates one and then given its place, style and surface as the table's cells would give
// them: strewn through the camera's view from 2,000 to 12,000 units away, of the default
// radius, three in four styled and surfaced. The edit history is emptied as it goes, so
// that it does not hold every step of a large system. The table is not told: the caller
// reloads it. Returns how many times over the planets' discs would cover the picture.
double addSpreadPlanets(window::AppDelegate& app, int count);

} // namespace orrery::bench
