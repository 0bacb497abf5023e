#include "core/support/Log.h"

#include <cstdio>

namespace orrery {
namespace {
LogSink& currentSink() {
    static LogSink sink;
    return sink;
}
} // namespace

void logMessage(std::string_view message) {
    if (const LogSink& sink = currentSink())
        sink(message);
    else
        std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
}

LogSink setLogSink(LogSink sink) {
    LogSink previous = std::move(currentSink());
    currentSink() = std::move(sink);
    return previous;
}

} // namespace orrery
