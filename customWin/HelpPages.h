#pragma once

#include <QUrl>

// The help pages ship with the program and open offline: the installed copy in the share
// folder beside the executable's, else the one of the tree the program was built from.
namespace orrery::window {

QUrl userGuideAddress();

// How to report a problem, where the settings and messages go, and the version.
QUrl supportPageAddress();

} // namespace orrery::window
