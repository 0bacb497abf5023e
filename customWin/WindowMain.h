#pragma once

namespace orrery::window {

// The OpenGL surface the scene needs; set before the application object exists.
void useSceneSurfaceFormat();

// Opens the window and runs it until it closes; returns the process's exit status.
int runWindow(int argc, char** argv);

} // namespace orrery::window
