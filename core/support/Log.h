#pragma once

#include <functional>
#include <string_view>

// The program's diagnostic log (standard error by default). Tests swap the sink to
// capture the few messages that matter.
namespace orrery {

using LogSink = std::function<void(std::string_view)>;

void logMessage(std::string_view message);
// Installs a sink and returns the previous one; an empty sink restores standard error.
LogSink setLogSink(LogSink sink);

} // namespace orrery
