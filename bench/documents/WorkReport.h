#pragma once

#include "bench/documents/SheetWatch.h"

#include <string>
#include <vector>

// Tables of work behind the progress sheet: one line for a few runs of the same work, with
// the median (and best) time and the medians of its parts, and room for more at the end.
namespace orrery::bench {

// The median and best of the runs' whole times.
Spread timeSpread(const std::vector<SheetWork>& runs);

void printWorkTitle(const std::string& heading, const std::string& more = {});
void printWork(const std::string& label, const std::vector<SheetWork>& runs,
               const std::string& more = {});

} // namespace orrery::bench
