#pragma once

namespace orrery::bench {

class FreshWindow;

// Saves the window's system of `planets` planets (Save As through its panel once, then Save
// a few times), opens the package again a few times, and reads and writes it with the core
// alone for comparison; prints the figures. False when a save or an open failed or did not
// end in time.
bool reportPackages(FreshWindow& fresh, int planets);

} // namespace orrery::bench
