#pragma once

#include "customWin/AppDelegate.h"

#include <QDialog>
#include <QLineEdit>
#include <QTemporaryDir>
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
    // Runs the start-up and waits until the main window is on screen. A first start shows
    // the introduction tour; it is closed unless the test wants it.
    enum class Tour { close, keep };
    void start(Tour tour = Tour::close);
    // The settings folder of this program ($XDG_DATA_HOME/<executable name>).
    QString appFolder() const;
    // Starts again in the same settings folder, as the next launch would.
    void restart(Tour tour = Tour::close);

private:
    QByteArray savedHome_;
    QTemporaryDir dataHome_;
    std::unique_ptr<AppDelegate> delegate_;
};

// A suite whose every test starts with the window of a first start.
class FreshWindowSuite : public QObject {
    Q_OBJECT
protected:
    AppDelegate& app() { return start_->delegate(); }
    FreshStart& start() { return *start_; }

protected slots:
    void init();
    void cleanup() { start_.reset(); }

private:
    std::unique_ptr<FreshStart> start_;
};

// The visible top-level window (a sheet, a panel) of that name, or null.
QWidget* visibleTopLevel(const char* name);

// Waits for that window as long as a busy desktop may take to show it; null when none comes,
// so that the caller's check fails the test rather than the whole suite.
QWidget* waitForTopLevel(const char* name);
template <typename T> T* waitForTopLevel(const char* name) {
    return qobject_cast<T*>(waitForTopLevel(name));
}

template <typename T> T& child(QWidget& window, const char* name) {
    T* found = window.findChild<T*>(QLatin1String(name));
    if (found == nullptr)
        qFatal("no %s named %s", T::staticMetaObject.className(), name);
    return *found;
}

// Types the path into a file panel's name field and presses its button, as a person would.
void chooseInPanel(QDialog& panel, const QString& path);
// The same in the panel of that name that is opening.
void chooseInNextPanel(const char* panelName, const QString& path);

// Replaces the field's text by typing, then presses the command key, as a person does.
void typeInto(QLineEdit& field, const char* text, Qt::Key command);

// Runs the command-line program, which reads back what the window wrote; its output.
QByteArray runOrrery(const QStringList& arguments);

// A file's bytes, or nothing when it cannot be read.
QByteArray contents(const QString& path);

// The colour of a point of a widget as it is drawn on screen.
QColor pixelOnScreen(QWidget& widget, QPoint point);

} // namespace orrery::window::testing
