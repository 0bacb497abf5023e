#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

class QWidget;

// Waiting on the window without blocking it: every wait runs the event loop, so the window
// goes on painting, results come back from worker threads and timers fire.
namespace orrery::bench {

using Clock = std::chrono::steady_clock;

inline constexpr int kTimeoutMs = 120000;

double millisecondsBetween(Clock::time_point from, Clock::time_point to);
double millisecondsSince(Clock::time_point start);

// The median and the best of a few samples; on a shared machine the best shows the cost
// without other load.
struct Spread {
    double median = 0.0;
    double best = 0.0;
};
Spread spread(std::vector<double> samples);

// Runs the event loop until `done` holds; false when it still does not after the timeout.
bool waitUntil(const std::function<bool()>& done, int timeoutMs = kTimeoutMs);

// The moment an awaited thing happened, taken once the event during which it happened has
// been handled in full: for a paint, once the window's whole update is done (the other
// widgets painted, the window composed and handed to the screen). Made before the action
// that causes it, waited on after.
class Arrival : public QObject {
public:
    // The next emission of `signal` for which `when` holds (any, without `when`).
    template <typename Sender, typename Signal>
    Arrival(const Sender* sender, Signal signal, std::function<bool()> when = {})
        : when_(std::move(when)) {
        connect(sender, signal, this, [this] { arrive(); });
    }
    // The next paint event of `widget`.
    explicit Arrival(QWidget& widget);

    // Runs the event loop until the arrival; the milliseconds from `start` to it, none
    // after the timeout.
    std::optional<double> millisecondsFrom(Clock::time_point start, int timeoutMs = kTimeoutMs);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrive();

    std::function<bool()> when_;
    bool noticed_ = false;
    std::optional<Clock::time_point> at_;
};

} // namespace orrery::bench
