#pragma once

#include "cli/ExitStatus.h"
#include "core/package/ProjectDocument.h"

#include <optional>
#include <string>

namespace orrery::cli {

// What `render` and `animate` check before they draw anything: the package read and worth
// exporting, the picture's pixel size at the scale, and a folder the output can go into.
struct ExportSetup {
    OpenedProject project;
    int width = 0;
    int height = 0;
};

// The setup; none, with the exit status and the one-line reason, when a check fails.
std::optional<ExportSetup> prepareExport(const std::string& package, double scale,
                                         const std::string& output, ExitStatus& status,
                                         std::string& error);

// Says early, before any rendering, that the output cannot go where it is asked to: the
// folder it lies in (for a folder path ending in '/', the folder's own parent) is missing or
// is a file. Empty when nothing is wrong that can be seen beforehand; the writing itself
// still reports anything this cannot foresee.
std::string outputFolderProblem(const std::string& output);

} // namespace orrery::cli
