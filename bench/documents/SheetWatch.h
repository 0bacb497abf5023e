#pragma once

#include "bench/table/Waiting.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

class QDialog;

namespace orrery::window {
class AppDelegate;
}

namespace orrery::bench {

// What a piece of work behind the progress sheet cost the person waiting for it, from the
// request to the result applied in the window.
struct SheetWork {
    double ms = 0.0;
    double requestMs = 0.0;      // the request itself, on the main thread, before the sheet
    double applyMs = 0.0;        // after the sheet, applying the result on the main thread
    int spinnerFrames = 0;       // how often the sheet's spinner was painted
    double longestStallMs = 0.0; // the longest the main thread answered nothing
    double shownMs = 0.0;        // until what the request was awaited for showed, when asked
};

// Watches the window while a request opens the progress sheet and the work behind it runs:
// the spinner's paints, and a timer beating every millisecond on the main thread, whose
// longest gap is the longest the window could not have painted anything.
class SheetWatch : public QObject {
public:
    explicit SheetWatch(window::AppDelegate& app);

    // Runs `request`, which must open the progress sheet, then the event loop until the
    // sheet has finished and its result has been applied, and with `shown` until that
    // arrived too (the stall counts until then). None when no sheet opened or the work did
    // not end in time.
    std::optional<SheetWork> run(const std::function<void()>& request, Arrival* shown = nullptr);
    // When the request was made, once `run` has begun.
    Clock::time_point started() const { return start_; }
    // Whether the sheet has finished (its result may still be being applied).
    bool finished() const { return finishedAt_.has_value(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QDialog* openedSheet() const;
    void beat();

    window::AppDelegate& app_;
    QTimer beat_;
    Clock::time_point start_;
    Clock::time_point lastBeat_;
    std::optional<Clock::time_point> finishedAt_;
    double longestGapMs_ = 0.0;
    int spinnerFrames_ = 0;
};

} // namespace orrery::bench
