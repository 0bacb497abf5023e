#pragma once

#include "core/edit/EditHistory.h"

#include <optional>
#include <string_view>

// What the window shows of the history: the name of a step in the Undo and Redo items
// ("Undo Radius", "Redo Delete Planet"), as a key of the strings resource, and the Show All
// box after a step of its own was undone or done again.
namespace orrery {

std::string_view stepNameKey(const EditStep& step);

// The box as it stood before the step (undone) or after it (done again); none for steps
// of other kinds, which leave the box alone.
std::optional<bool> showAllBoxAfter(const EditStep& step, bool undone);

} // namespace orrery
