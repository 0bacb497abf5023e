#pragma once

#include "bench/window/ChildProcess.h"

// What a child process measures. Each builds its own QApplication and returns the exit
// status; the figures go to standard output (see ChildProcess.h).
namespace orrery::bench {

// A bare window holding one QOpenGLWidget of the first start's document size, with the
// main window's surface format: reports "ms" to its first frame, and the OpenGL
// "renderer" and "version".
int runBareStart(int argc, char** argv, Clock::time_point start);

// The program's window started as the program starts it: reports "ms" to the scene view's
// first frame.
int runWindowStart(int argc, char** argv, Clock::time_point start);

// The program's window with a planet dragged among `planets` (see PlanetDrag.h).
int runWindowDrag(int argc, char** argv, int planets);

} // namespace orrery::bench
