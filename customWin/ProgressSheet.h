#pragma once

#include <QDialog>
#include <QFutureWatcher>
#include <QTimer>
#include <QtConcurrent>

#include <functional>

class QLabel;
class QProgressBar;

namespace orrery::window {

// A small wheel that turns while work goes on elsewhere.
class Spinner : public QWidget {
    Q_OBJECT
public:
    explicit Spinner(QWidget* parent);
    void start();
    void stop();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer timer_;
    int steps_ = 0;
};

// The progress sheet shown while a package is read or written or a picture is exported:
// 400 x 114 with its spinner and one line saying what is going on.
class ProgressSheet : public QDialog {
    Q_OBJECT
public:
    ProgressSheet(const QString& label, QWidget& window);
    void begin();
    void end();
    // How much of the work is done. Work that comes in several steps (a picture drawn in
    // tiles) takes more than a moment: a bar shows it.
    void setProgress(int done, int total);
    // Long work that can stop half way: a line under the bar says how far it is, and a
    // Cancel button (named "progressCancel") calls `cancel` once and greys out.
    void offerCancel(const QString& buttonText, std::function<void()> cancel);
    void setDetail(const QString& detail);

private:
    Spinner* spinner_;
    QLabel* label_;
    QProgressBar* bar_;
    QLabel* detail_ = nullptr;
};

// Runs `work` on a worker thread while the progress sheet, already begun, turns on the
// window, then `done` with its result back on the main thread, after the sheet has gone.
template <typename Result>
void runWithProgress(ProgressSheet* progress, QWidget& window, std::function<Result()> work,
                     std::function<void(Result&)> done) {
    auto* watcher = new QFutureWatcher<Result>(progress);
    QObject::connect(watcher, &QFutureWatcher<Result>::finished, &window,
                     [watcher, progress, done = std::move(done)] {
                         // Taken, not copied: a result may hold a whole system.
                         Result result = watcher->future().takeResult();
                         progress->end();
                         done(result);
                     });
    watcher->setFuture(QtConcurrent::run(std::move(work)));
}

// The same behind a progress sheet of its own.
template <typename Result>
void runWithProgress(QWidget& window, const QString& label, std::function<Result()> work,
                     std::function<void(Result&)> done) {
    auto* progress = new ProgressSheet(label, window);
    progress->begin();
    runWithProgress(progress, window, std::move(work), std::move(done));
}

} // namespace orrery::window
