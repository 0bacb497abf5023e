#pragma once

#include <QIcon>
#include <QString>

// The program's own pictures, compiled in: the title-bar images under ":/titlebar" and
// the application icon under ":/icons".
namespace orrery::artwork {

// The application icon: the desktop theme's "orrery" when one is installed, so that the
// window and the launcher show the same picture, otherwise the one compiled in.
QIcon applicationIcon();

// A title-bar image by its name ("close-active-color", "fullImage"). The icon draws the
// SVG at the size and device-pixel ratio it is asked for, so it stays crisp on any screen.
QIcon titleBarImage(const QString& name);

} // namespace orrery::artwork
