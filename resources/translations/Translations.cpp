#include "resources/translations/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace orrery::translations {

namespace {
constexpr auto folder = ":/translations";
}

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
        QCoreApplication::installTranslator(preferred);
        return preferred->language();
    }
    delete preferred;
    return english->language();
}

} // namespace orrery::translations
