#include "customWin/Strings.h"

namespace orrery::window {

QString text(const char* key) {
    const QString found = qtTrId(key);
    return found == QLatin1String(key) ? QString() : found;
}

QString textWith(const char* key, const QString& argument) {
    const QString format = text(key);
    return format.isEmpty() ? format : format.arg(argument);
}

} // namespace orrery::window
