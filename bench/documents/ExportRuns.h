#pragma once

namespace orrery::bench {

class FreshWindow;

// Sets the window's document to 1920 x 1080, then exports its scene in every format
// through the window (the format question, the save panel, the file written behind the
// progress sheet) and writes the same picture with the bare encoder, alternately, a few
// times each; prints both. False when an export failed.
bool reportExports(FreshWindow& fresh);

} // namespace orrery::bench
