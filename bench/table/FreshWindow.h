#pragma once

#include "customWin/AppDelegate.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>

// The program's window as a person first starts it, for the benchmarks that drive it.
namespace orrery::bench {

// Makes the application object as the program does (the scene's surface format, the
// English texts, the program's look) in a home folder of its own, which outlives it, so
// that nothing the toolkit keeps there (the file panels' state) reaches the real home; runs
// `body` and returns its exit status.
int runWithApplication(int argc, char** argv, const std::function<int()>& body);

// A new, empty settings folder, the controller started as the program starts it, and the
// window on screen with its first frame painted.
class FreshWindow {
public:
    FreshWindow();
    FreshWindow(const FreshWindow&) = delete;
    FreshWindow& operator=(const FreshWindow&) = delete;

    window::AppDelegate& app() { return *app_; }
    // False when the window never painted its first frame.
    bool ready() const { return ready_; }
    // Whether the whole window lies on the screen.
    bool fits();
    // A folder for the files a benchmark writes, removed with the window.
    QString folder() const { return dataHome_.path(); }

private:
    QTemporaryDir dataHome_;
    std::unique_ptr<window::AppDelegate> app_;
    bool ready_ = false;
};

} // namespace orrery::bench
