#pragma once

#include <QObject>

#include <memory>

// The window's test suites; the test program runs the one named on its command line, so
// that each runs as a test of its own.
namespace orrery::window::testing {

std::unique_ptr<QObject> makeStartupTest();
std::unique_ptr<QObject> makeChromeTest();
std::unique_ptr<QObject> makeMenuTest();
std::unique_ptr<QObject> makeSceneTest();
std::unique_ptr<QObject> makePlanetsTest();
std::unique_ptr<QObject> makeCameraLightTest();
std::unique_ptr<QObject> makeDocumentsTest();
std::unique_ptr<QObject> makeExportTest();
std::unique_ptr<QObject> makeGermanTest();
std::unique_ptr<QObject> makePreferencesTest();
std::unique_ptr<QObject> makeTourTest();
std::unique_ptr<QObject> makeSafeEditingTest();
std::unique_ptr<QObject> makeWindowsAndMenusTest();

} // namespace orrery::window::testing
