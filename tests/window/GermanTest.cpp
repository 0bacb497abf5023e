// The window on a German desktop: every title, button, label, tab, field hint and column
// heading a person sees reads in German, in our own controls and in Qt's panels alike.
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "tests/window/WindowTestSuites.h"
#include "tests/window/WindowTestSupport.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <algorithm>

namespace orrery::window::testing {
namespace {

QStringList resourceKeys() {
    QFile file(QStringLiteral(ORRERY_SOURCE_DIR "/resources/translations/orrery_en.ts"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QStringList keys;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String("message"))
            keys.append(xml.attributes().value(QLatin1String("id")).toString());
    return keys;
}

// The English texts of the strings resource that read otherwise in German. A format text
// ("Quit %1") stands for every text filled in from it.
class EnglishTexts {
public:
    EnglishTexts() {
        QTranslator english;
        if (!english.load(QStringLiteral("orrery_en"), QStringLiteral(":/translations")))
            qFatal("the English texts are not in the program");
        for (const QString& key : resourceKeys()) {
            const QByteArray id = key.toUtf8();
            const QString text = english.translate(nullptr, id.constData());
            if (text != qtTrId(id.constData()))
                add(text);
        }
    }

    bool matches(const QString& shown) const {
        return plain_.contains(shown) ||
               std::any_of(formats_.begin(), formats_.end(), [&](const QRegularExpression& format) {
                   return format.match(shown).hasMatch();
               });
    }

private:
    void add(const QString& text) {
        static const QRegularExpression argument(QStringLiteral("%[1-9]"));
        static const QRegularExpression letter(QStringLiteral("\\p{L}"));
        if (!text.contains(argument)) {
            plain_.insert(text);
            return;
        }
        // A format of nothing but its argument and signs ("%1%") matches German as well.
        if (!QString(text).remove(argument).contains(letter))
            return;
        QStringList parts = text.split(argument);
        for (QString& part : parts)
            part = QRegularExpression::escape(part);
        formats_.append(QRegularExpression(
            QRegularExpression::anchoredPattern(parts.join(QStringLiteral(".+")))));
    }

    QSet<QString> plain_;
    QList<QRegularExpression> formats_;
};

QString firstShown(std::initializer_list<QString> texts) {
    const auto shown = std::find_if(texts.begin(), texts.end(),
                                    [](const QString& text) { return !text.isEmpty(); });
    return shown != texts.end() ? *shown : QString();
}

QString nameOf(const QObject& object) {
    return object.objectName().isEmpty() ? QLatin1String(object.metaObject()->className())
                                         : object.objectName();
}

// Reads what a person sees and notes each text that is missing where a title belongs or that
// still reads in English.
class TextWalk {
public:
    explicit TextWalk(const EnglishTexts& english) : english_(english) {}
    const QStringList& faults() const { return faults_; }

    void menuBar(const QMenuBar& bar) {
        for (const QAction* item : bar.actions())
            menuItem(*item, nameOf(bar));
    }

    void window(const QWidget& window) {
        // A frameless sheet or a popover shows no title; a framed window does.
        const bool framed =
            !window.windowFlags().testFlag(Qt::FramelessWindowHint) &&
            (window.windowType() == Qt::Window || window.windowType() == Qt::Dialog);
        if (framed)
            title(nameOf(window), window.windowTitle());
        else
            text(nameOf(window), window.windowTitle());
        for (const QWidget* widget : window.findChildren<QWidget*>())
            if (widget->isVisible() && widget->window() == &window)
                control(*widget, nameOf(window) + QLatin1Char('/') + nameOf(*widget));
    }

private:
    void menuItem(const QAction& item, const QString& where) {
        if (item.isSeparator())
            return;
        const QString path = where + QStringLiteral(" > ") + nameOf(item);
        title(path, item.text().section(QLatin1Char('\t'), 0, 0));
        if (item.menu() != nullptr)
            for (const QAction* inner : item.menu()->actions())
                menuItem(*inner, path);
    }

    void control(const QWidget& widget, const QString& where) {
        text(where, widget.toolTip());
        text(where, widget.accessibleName());
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            // A picture button is titled by its accessible name or its tool tip.
            title(where, firstShown({button->text(), button->accessibleName(), button->toolTip()}));
        } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            text(where, label->text());
        } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
            title(where, box->title());
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                title(where, tabs->tabText(i));
        } else if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
            text(where, field->placeholderText());
        } else if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
            for (int i = 0; i < choice->count(); ++i)
                text(where, choice->itemText(i));
        } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget);
                   header != nullptr && header->orientation() == Qt::Horizontal) {
            for (int i = 0; i < header->count(); ++i)
                title(where, header->model()->headerData(i, Qt::Horizontal).toString());
        }
    }

    void title(const QString& where, const QString& shown) {
        if (shown.trimmed().isEmpty())
            faults_.append(where + QStringLiteral(": no title"));
        else
            text(where, shown);
    }

    void text(const QString& where, const QString& shown) {
        const QString fault = where + QStringLiteral(": still English: ") + shown;
        if (english_.matches(QString(shown).remove(QLatin1Char('&')).trimmed()) &&
            !faults_.contains(fault))
            faults_.append(fault);
    }

    const EnglishTexts& english_;
    QStringList faults_;
};

void click(QWidget& window, const char* button) {
    QTest::mouseClick(&child<QAbstractButton>(window, button), Qt::LeftButton);
}

void askToExport(AppDelegate& app) {
    app.editor().createPlanet("100", "Terra");
    app.reloadPlanets();
    app.menus().fileExport->trigger();
    waitForTopLevel("questionSheet");
}

void preferencesTab(AppDelegate& app, int tab) {
    app.menus().appPreferences->trigger();
    if (QWidget* sheet = waitForTopLevel("preferencesSheet"))
        child<QTabWidget>(*sheet, "tabView1p").setCurrentIndex(tab);
}

// What a person can open from the window, and the window it opens.
struct Opening {
    const char* name;
    void (*open)(AppDelegate&);
    const char* window;
};

const Opening kOpenings[] = {
    {"first start", [](AppDelegate&) {}, "mainWindow"},
    {"camera settings", [](AppDelegate& app) { click(app.window(), "cameraButton5"); }, "popOver5"},
    {"light settings", [](AppDelegate& app) { click(app.window(), "lightButton4"); }, "popOver4"},
    {"light colour",
     [](AppDelegate& app) {
         click(app.window(), "lightButton4");
         if (QWidget* popover = waitForTopLevel("popOver4"))
             click(*popover, "colorWell4");
     },
     "colorDialog"},
    {"planet creation", [](AppDelegate& app) { app.menus().planetCreate->trigger(); },
     "planetAddSheet"},
    {"save panel", [](AppDelegate& app) { app.menus().fileSaveAs->trigger(); }, "savePanel"},
    {"export question", askToExport, "questionSheet"},
    {"animation sheet",
     [](AppDelegate& app) {
         app.editor().createPlanet("100", "Terra");
         app.reloadPlanets();
         app.menus().fileExportAnimation->trigger();
     },
     "animationSheet"},
    {"export panel with compression",
     [](AppDelegate& app) {
         askToExport(app);
         QWidget* question = visibleTopLevel("questionSheet");
         if (question == nullptr)
             return;
         QWidget& sheet = *question;
         auto& formats = child<QComboBox>(sheet, "exportPopup1");
         formats.setCurrentIndex(formats.findText(QStringLiteral("JPEG")));
         click(sheet, "sheetButton1000");
     },
     "savePanel"},
    {"help question", [](AppDelegate& app) { app.menus().helpUserguide->trigger(); },
     "questionSheet"},
    {"style library", [](AppDelegate& app) { app.menus().windowGradation->trigger(); },
     "gradationWindow"},
    {"find planet", [](AppDelegate& app) { app.menus().windowSearch->trigger(); }, "searchWindow"},
    {"preferences, general", [](AppDelegate& app) { app.menus().appPreferences->trigger(); },
     "preferencesSheet"},
    {"preferences, folders", [](AppDelegate& app) { preferencesTab(app, 1); }, "preferencesSheet"},
    {"preferences, exporting", [](AppDelegate& app) { preferencesTab(app, 2); },
     "preferencesSheet"},
    {"introduction", [](AppDelegate& app) { app.openIntroduction(); }, "introductionWindow"},
};

} // namespace

class GermanTest : public FreshWindowSuite {
    Q_OBJECT
private slots:
    void initTestCase() {
        // Without the German texts every check below would pass on an English window.
        QCOMPARE(text("makeMenuFile"), QStringLiteral("Datei"));
    }

    void theMenusReadInGerman() {
        TextWalk walk(english_);
        walk.menuBar(child<QMenuBar>(app().window(), "menuBar"));
        QVERIFY2(walk.faults().isEmpty(), qPrintable(walk.faults().join(QLatin1Char('\n'))));
    }

    void everyWindowAPersonOpensReadsInGerman_data() {
        QTest::addColumn<int>("opening");
        for (int i = 0; i < int(std::size(kOpenings)); ++i)
            QTest::newRow(kOpenings[i].name) << i;
    }

    void everyWindowAPersonOpensReadsInGerman() {
        QFETCH(int, opening);
        kOpenings[opening].open(app());
        QVERIFY(waitForTopLevel(kOpenings[opening].window) != nullptr);
        TextWalk walk(english_);
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible())
                walk.window(*window);
        QVERIFY2(walk.faults().isEmpty(), qPrintable(walk.faults().join(QLatin1Char('\n'))));
    }

private:
    const EnglishTexts english_;
};

std::unique_ptr<QObject> makeGermanTest() {
    return std::make_unique<GermanTest>();
}

} // namespace orrery::window::testing

#include "GermanTest.moc"
