#include "core/model/Totalsecs.h"

#include <chrono>

namespace orrery {

std::uint64_t Totalsecs() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now).count();
    return seconds < 0 ? 0 : static_cast<std::uint64_t>(seconds);
}

} // namespace orrery
