#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The benchmark measures every sample in a process of its own, so that each start is cold:
// it runs its own executable again as `bench_window --child MODE START [ARGUMENT]`, where
// START is the moment just before the fork. A child prints its figures as "key value" lines.
namespace orrery::bench {

using Clock = std::chrono::steady_clock;
using Figures = std::map<std::string, std::string>;

// Runs one child with a fresh, empty XDG_DATA_HOME (removed afterwards; also the runtime
// folder when there is none) and collects what it printed; none when the child failed.
std::optional<Figures> runChild(const std::string& mode, const std::string& argument = {});

// The START argument of a child.
Clock::time_point startFromArgument(const char* text);

// In a child: hands one figure to the parent at once.
void report(const char* key, const std::string& value);
void report(const char* key, double value);

double millisecondsSince(Clock::time_point start);

} // namespace orrery::bench
