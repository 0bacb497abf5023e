#include "resources/translations/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace orrery::translations {

namespace {
constexpr auto folder = ":/translations";

// Qt's own panels and controls (file, colour and print dialogs, a field's context menu, a
// dialog's standard buttons) in the language of our texts, from the catalogue Qt installs
// beside itself. "qtbase_de_DE" falls back to "qtbase_de" when there is no regional file.
void installQtTexts(QCoreApplication& application, const QString& language) {
    auto* qt = new QTranslator(&application);
    if (qt->load(QStringLiteral("qtbase_") + language,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
}
} // namespace

QString install(QCoreApplication& application, const QLocale& locale) {
    auto* english = new QTranslator(&application);
    if (!english->load(QStringLiteral("orrery_en"), QString::fromLatin1(folder))) {
        delete english;
        return {};
    }
    QCoreApplication::installTranslator(english);

    // QTranslator walks the locale's interface languages ("de-CH", "de", ...) and takes
    // the first orrery_<lang>.qm it finds; the last installed translator is asked first.
    auto* preferred = new QTranslator(&application);
    if (preferred->load(locale, QStringLiteral("orrery"), QStringLiteral("_"),
                        QString::fromLatin1(folder)) &&
        preferred->language() != english->language()) {
        installQtTexts(application, preferred->language());
        QCoreApplication::installTranslator(preferred);
        return preferred->language();
    }
    delete preferred;
    return english->language();
}

} // namespace orrery::translations
