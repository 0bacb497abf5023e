#pragma once

class QLineEdit;

namespace orrery::window {

// A field whose value was checked shows it: red text for a value that cannot be used,
// black for one that can. The text itself is kept either way.
void markValid(QLineEdit& field, bool valid);

} // namespace orrery::window
