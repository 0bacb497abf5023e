#pragma once

#include <QUrl>

namespace orrery::window {

// The user guide ships with the program and opens offline: the installed copy beside the
// executable's share folder, else the one in the source tree the program was built from.
QUrl userGuideAddress();

// The support page, whose address is a text of the strings resource so that a packager
// can change it in one place.
QUrl supportPageAddress();

} // namespace orrery::window
