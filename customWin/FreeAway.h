#pragma once

#include <QThreadPool>

#include <memory>
#include <tuple>
#include <utility>

namespace orrery::window {

// Frees what a replaced system held on a worker, so that the window goes on at once: taking
// down 100,000 planet nodes and records costs half a second. What is handed over must be
// shared with nothing that the main thread reads or writes without atomics.
template <typename... Things> void freeAway(Things... things) {
    auto held = std::make_shared<std::tuple<Things...>>(std::move(things)...);
    QThreadPool::globalInstance()->start([held = std::move(held)]() mutable { held.reset(); });
}

} // namespace orrery::window
