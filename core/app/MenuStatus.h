#pragma once

#include <cstddef>
#include <vector>

// While a sheet or a question is up, the menu items that act on the document are switched
// off and afterwards back to what they were. Saving and restoring nest one deep only: a
// second save before the matching restore would record the all-off state.
namespace orrery {

// Records the items' enabled states in menuArray and returns the states to apply now
// (every item off).
std::vector<bool> saveMenuStatus(std::vector<bool>& menuArray, const std::vector<bool>& enabled);

// The states to apply to `count` items when the sheet ends: on where the saved state is
// on, off everywhere else (also past the end of what was saved).
std::vector<bool> loadMenuStatus(const std::vector<bool>& menuArray, std::size_t count);

} // namespace orrery
