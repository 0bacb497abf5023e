#pragma once

namespace orrery::window {
class sceneView;
}

namespace orrery::bench {

// Resizes the main window around a 1920 x 1080 document and puts it on screen, fills the
// scene with `planets` planets through the scene operations, and drags the one in front with
// mouse events for about two seconds, each move waiting for its frame. Reports "fps",
// "frames", "worst_ms" (the slowest move to frame), "cpu_ms" (the process's processor time
// a frame, which other load on the machine does not inflate), "moves" (the planet's reported
// positions), "coverage" (how many times over the planets would paint the picture),
// and "fits" (whether the window lies on the screen). False when the document area did not
// get its size or a frame never came.
bool reportPlanetDrag(window::sceneView& view, int planets);

} // namespace orrery::bench
