#pragma once

#include <cstdint>

namespace orrery {

// Whole seconds since 1970-01-01 UTC, fractions dropped: the only source of planet
// identities ("tsecs"). Two planets made within one second share it, by design.
std::uint64_t Totalsecs();

} // namespace orrery
