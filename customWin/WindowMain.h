#pragma once

namespace orrery::window {

// Opens the window and runs it until it closes; returns the process's exit status.
int runWindow(int argc, char** argv);

} // namespace orrery::window
