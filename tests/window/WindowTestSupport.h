#pragma once

#include "customWin/AppDelegate.h"

#include <QTemporaryDir>
#include <QDialog>
#include <QWidget>

#include <memory>

// What every window test needs: a fresh settings folder and the real controller, started
// as the program starts it.
namespace orrery::window::testing {

class FreshStart {
public:
    // Points XDG_DATA_HOME at a new empty folder; the controller is made but not started.
    FreshStart();
    ~FreshStart();

    AppDelegate& delegate() { return *delegate_; }
    // Runs the start-up and waits until the main window is on screen.
    void start();
    // The settings folder of this program ($XDG_DATA_HOME/<executable name>).
    QString appFolder() const;
    // Starts again in the same settings folder, as the next launch would.
    void restart();

private:
    QByteArray savedHome_;
    QTemporaryDir dataHome_;
    std::unique_ptr<AppDelegate> delegate_;
};

template <typename T>
T& child(QWidget& window, const char* name) {
    T* found = window.findChild<T*>(QLatin1String(name));
    if (found == nullptr)
        qFatal("no %s named %s", T::staticMetaObject.className(), name);
    return *found;
}

// Types the path into a file panel's name field and presses its button, as a person would.
void chooseInPanel(QDialog& panel, const QString& path);

// The colour of a point of a widget as it is drawn on screen.
QColor pixelOnScreen(QWidget& widget, QPoint point);

} // namespace orrery::window::testing
