#include "bench/table/Waiting.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace orrery::bench {
namespace {

constexpr int kPollMs = 1;

} // namespace

double millisecondsBetween(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

double millisecondsSince(Clock::time_point start) {
    return millisecondsBetween(start, Clock::now());
}

Spread spread(std::vector<double> samples) {
    if (samples.empty())
        return {};
    std::sort(samples.begin(), samples.end());
    return {samples[samples.size() / 2], samples.front()};
}

bool waitUntil(const std::function<bool()>& done, int timeoutMs) {
    // What the window let go outside any event loop (a sheet the benchmark answered) goes
    // now, as it would in the window's own loop, which the benchmark never runs.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (done())
        return true;
    QEventLoop loop;
    QTimer poll;
    poll.setInterval(kPollMs);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (done())
            loop.quit();
    });
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    poll.start();
    loop.exec();
    return done();
}

Arrival::Arrival(QWidget& widget) {
    widget.installEventFilter(this);
}

bool Arrival::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Paint)
        arrive();
    return false;
}

void Arrival::arrive() {
    if (noticed_ || (when_ && !when_()))
        return;
    noticed_ = true;
    // Posted, so it runs once the event being handled now is finished.
    QMetaObject::invokeMethod(
        this, [this] { at_ = Clock::now(); }, Qt::QueuedConnection);
}

std::optional<double> Arrival::millisecondsFrom(Clock::time_point start, int timeoutMs) {
    if (!waitUntil([this] { return at_.has_value(); }, timeoutMs))
        return std::nullopt;
    return millisecondsBetween(start, *at_);
}

} // namespace orrery::bench
