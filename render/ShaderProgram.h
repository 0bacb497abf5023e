#pragma once

#include "render/GlObject.h"

#include <optional>
#include <string>
#include <string_view>

namespace orrery::render {

// Compiles and links a vertex and a fragment shader. None, and the compiler's log in
// `error`, when either stage or the link fails.
std::optional<GlObject> buildProgram(std::string_view vertexSource, std::string_view fragmentSource,
                                     std::string* error);

} // namespace orrery::render
