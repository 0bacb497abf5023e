#pragma once

#include <QString>

class QCoreApplication;
class QLocale;

// The strings resource: the compiled languages embedded in the program under
// ":/translations" as orrery_<lang>.qm, looked up by key with qtTrId().
namespace orrery::translations {

// Installs the English texts and, above them, the texts of the first of the locale's
// interface languages that the program carries, so that a key a translation lacks
// still reads in English; Qt's own dialogs and controls follow that language when Qt's
// translations are installed. The translators belong to the application. Returns the
// language installed on top: "en" when English is all there is, or an empty text
// when not even English could be loaded (every key then reads as its id).
QString install(QCoreApplication& application, const QLocale& locale);

} // namespace orrery::translations
