#include "bench/documents/WorkReport.h"

#include <cstdio>

namespace orrery::bench {

Spread timeSpread(const std::vector<SheetWork>& runs) {
    std::vector<double> ms;
    for (const SheetWork& run : runs)
        ms.push_back(run.ms);
    return spread(ms);
}

void printWorkTitle(const std::string& heading, const std::string& more) {
    std::printf("  %-34s %17s %10s %10s %8s %10s  %s\n", heading.c_str(), "ms (best)", "request",
                "apply", "spinner", "stall", more.c_str());
}

void printWork(const std::string& label, const std::vector<SheetWork>& runs,
               const std::string& more) {
    std::vector<double> request, apply, frames, stalls;
    for (const SheetWork& run : runs) {
        request.push_back(run.requestMs);
        apply.push_back(run.applyMs);
        frames.push_back(run.spinnerFrames);
        stalls.push_back(run.longestStallMs);
    }
    const Spread time = timeSpread(runs);
    std::printf("    %-32s %8.1f (%6.1f) %10.1f %10.1f %8.0f %10.1f%s%s\n", label.c_str(),
                time.median, time.best, spread(request).median, spread(apply).median,
                spread(frames).median, spread(stalls).median, more.empty() ? "" : "  ",
                more.c_str());
}

} // namespace orrery::bench
