#pragma once

#include <QString>

// Every text the window shows comes from the strings resource, looked up by key. A key the
// resource lacks gives the empty text rather than the key itself, so a missing translation
// never shows an identifier to the user.
namespace orrery::window {

QString text(const char* key);
// A format text ("Quit %1") with its argument filled in.
QString textWith(const char* key, const QString& argument);

} // namespace orrery::window
