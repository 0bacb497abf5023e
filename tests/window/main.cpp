#include "customWin/WindowMain.h"
#include "resources/translations/Translations.h"
#include "tests/window/WindowTestSuites.h"

#include <QApplication>
#include <QLocale>
#include <QTest>

#include <cstdio>
#include <cstring>
#include <functional>
#include <map>

int main(int argc, char** argv) {
    using namespace orrery::window::testing;
    const std::map<std::string, std::function<std::unique_ptr<QObject>()>> suites{
        {"Startup", makeStartupTest},
        {"Chrome", makeChromeTest},
        {"Menu", makeMenuTest},
        {"Scene", makeSceneTest},
        {"Planets", makePlanetsTest},
        {"CameraLight", makeCameraLightTest},
        {"Documents", makeDocumentsTest},
        {"Export", makeExportTest},
        {"Preferences", makePreferencesTest},
        {"Tour", makeTourTest},
        {"SafeEditing", makeSafeEditingTest},
        {"German", makeGermanTest},
        {"WindowsAndMenus", makeWindowsAndMenusTest}};
    const auto suite = argc > 1 ? suites.find(argv[1]) : suites.end();
    if (suite == suites.end()) {
        std::fprintf(stderr, "usage: %s SUITE [Qt Test options]\n", argv[0]);
        return 2;
    }
    orrery::window::useSceneSurfaceFormat();
    QApplication application(argc, argv);
    // The German suite reads the window in the desktop's language, which ctest sets to
    // German; the others check English texts.
    orrery::translations::install(
        application, suite->first == "German" ? QLocale::system() : QLocale(QLocale::English));
    const std::unique_ptr<QObject> tests = suite->second();
    // Qt Test reads its own options from what follows the suite's name.
    argv[1] = argv[0];
    return QTest::qExec(tests.get(), argc - 1, argv + 1);
}
