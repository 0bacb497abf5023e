#include "cli/ExitStatus.h"
#include "cli/Verbs.h"

#include <filesystem>
#include <iostream>
#include <new>

namespace {

// The window is not part of this build yet: say where the command line is.
int openWindow(std::string_view program) {
    std::cerr << program << ": this build has no window; see " << program << " --help\n";
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const std::string program = std::filesystem::path(argc > 0 ? argv[0] : "orrery").filename();
    if (!orrery::cli::isCommandLine(arguments))
        return openWindow(program);
    try {
        return orrery::cli::runCommandLine(arguments, {program, std::cout, std::cerr});
    } catch (const std::bad_alloc&) {
        // A picture or a package too large for this machine: say so instead of aborting.
        return orrery::cli::fail(std::cerr, program, orrery::cli::kCannotWrite, "out of memory");
    }
}
