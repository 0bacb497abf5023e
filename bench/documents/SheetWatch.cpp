#include "bench/documents/SheetWatch.h"

#include "customWin/AppDelegate.h"
#include "customWin/mainWindow.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

#include <algorithm>

namespace orrery::bench {

SheetWatch::SheetWatch(window::AppDelegate& app) : app_(app) {
    beat_.setTimerType(Qt::PreciseTimer);
    beat_.setInterval(1);
    connect(&beat_, &QTimer::timeout, this, &SheetWatch::beat);
}

void SheetWatch::beat() {
    const Clock::time_point now = Clock::now();
    longestGapMs_ = std::max(longestGapMs_, millisecondsBetween(lastBeat_, now));
    lastBeat_ = now;
}

bool SheetWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("progressSpinner"))
        ++spinnerFrames_;
    return false;
}

QDialog* SheetWatch::openedSheet() const {
    for (QDialog* sheet : app_.window().findChildren<QDialog*>(QStringLiteral("progressSheet")))
        if (sheet->isVisible())
            return sheet;
    return nullptr;
}

std::optional<SheetWork> SheetWatch::run(const std::function<void()>& request, Arrival* shown) {
    qApp->installEventFilter(this);
    start_ = lastBeat_ = Clock::now();
    beat_.start();
    request();
    const double requestMs = millisecondsSince(start_);
    QDialog* sheet = openedSheet();
    std::optional<double> ms;
    if (sheet != nullptr) {
        connect(sheet, &QDialog::finished, this, [this] { finishedAt_ = Clock::now(); });
        Arrival applied(sheet, &QDialog::finished);
        ms = applied.millisecondsFrom(start_);
    }
    const std::optional<double> shownMs =
        ms && shown != nullptr ? shown->millisecondsFrom(start_) : ms;
    beat();
    beat_.stop();
    qApp->removeEventFilter(this);
    if (!ms || !shownMs)
        return std::nullopt;
    const double applyMs = *ms - millisecondsBetween(start_, *finishedAt_);
    return SheetWork{*ms, requestMs, applyMs, spinnerFrames_, longestGapMs_, *shownMs};
}

} // namespace orrery::bench
