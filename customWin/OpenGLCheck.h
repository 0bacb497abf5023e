#pragma once

#include <QString>

namespace orrery::window {

// What the scene lacks on this display, or the empty text when OpenGL 3.3 core (or later)
// can be made current here. Asked once, before any window exists: a display without
// usable OpenGL (a remote desktop without GLX, the offscreen platform) would otherwise
// fail deep inside the first frame.
QString missingOpenGL();

// Tells the person in one line on standard error and, where there is a screen to show
// one on, in an alert.
void reportMissingOpenGL(const QString& program, const QString& missing);

} // namespace orrery::window
