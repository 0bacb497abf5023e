#pragma once

namespace orrery {

// The numbers the planet table's style menu offers besides 0 (no style): 1 to 82.
inline constexpr long kStyleChoices = 82;

} // namespace orrery
