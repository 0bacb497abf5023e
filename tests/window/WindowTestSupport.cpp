#include "tests/window/WindowTestSupport.h"

#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

namespace orrery::window::testing {

FreshStart::FreshStart() : savedHome_(qgetenv("HOME")) {
    // A home of its own too: the panels start in the documents folder, which is the home
    // folder when there is no other.
    qputenv("XDG_DATA_HOME", dataHome_.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", dataHome_.path().toLocal8Bit());
    qputenv("HOME", dataHome_.path().toLocal8Bit());
    delegate_ = std::make_unique<AppDelegate>();
}

FreshStart::~FreshStart() {
    delegate_.reset();
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("XDG_CONFIG_HOME");
    qputenv("HOME", savedHome_);
}

void FreshStart::start(Tour tour) {
    // The tour, if it comes, comes with the scene's first frame.
    QSignalSpy firstFrame(&delegate_->sceneview(), &sceneView::framePainted);
    delegate_->applicationWillFinishLaunching();
    QVERIFY(firstFrame.count() > 0 || firstFrame.wait(20000));
    if (QWidget* introduction = visibleTopLevel("introductionWindow");
        introduction != nullptr && tour == Tour::close)
        introduction->close();
    mainWindow& window = delegate_->window();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    // The scene's own window takes over from the first frame soon after it.
    QVERIFY(QTest::qWaitForWindowExposed(&delegate_->sceneview().surface()));
    // The keyboard goes to the main window, unless the test keeps the tour in front; the
    // window manager hands it over in its own time.
    if (tour == Tour::close) {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
}

QString FreshStart::appFolder() const {
    return dataHome_.path() + QLatin1Char('/') + QCoreApplication::applicationName();
}

void FreshStart::restart(Tour tour) {
    delegate_.reset();
    delegate_ = std::make_unique<AppDelegate>();
    start(tour);
}

void FreshWindowSuite::init() {
    start_ = std::make_unique<FreshStart>();
    start_->start();
}

QWidget* visibleTopLevel(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return window;
    return nullptr;
}

QWidget* waitForTopLevel(const char* name) {
    constexpr int kPatienceMs = 20000;
    QWidget* window = nullptr;
    const bool shown =
        QTest::qWaitFor([&] { return (window = visibleTopLevel(name)) != nullptr; }, kPatienceMs);
    return shown ? window : nullptr;
}

void chooseInPanel(QDialog& panel, const QString& path) {
    auto* name = panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name == nullptr)
        qFatal("the panel has no name field");
    name->setText(path);
    panel.accept();
}

void typeInto(QLineEdit& field, const char* text, Qt::Key command) {
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QLatin1String(text));
    QTest::keyClick(&field, command);
}

QByteArray runOrrery(const QStringList& arguments) {
    QProcess orrery;
    orrery.start(QStringLiteral(ORRERY_EXECUTABLE), arguments);
    orrery.waitForFinished(30000);
    return orrery.readAllStandardOutput();
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void chooseInNextPanel(const char* panelName, const QString& path) {
    if (QDialog* panel = waitForTopLevel<QDialog>(panelName))
        chooseInPanel(*panel, path);
    else
        QFAIL(panelName);
}

QColor pixelOnScreen(QWidget& widget, QPoint point) {
    const QPoint global = widget.mapToGlobal(point);
    const QPixmap shot = widget.screen()->grabWindow(0, global.x(), global.y(), 1, 1);
    return shot.toImage().pixelColor(0, 0);
}

} // namespace orrery::window::testing
