#include "cli/ExitStatus.h"
#include "cli/Verbs.h"
#include "customWin/WindowMain.h"

#include <filesystem>
#include <iostream>
#include <new>

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const std::string program = std::filesystem::path(argc > 0 ? argv[0] : "orrery").filename();
    if (!orrery::cli::isCommandLine(arguments))
        return orrery::window::runWindow(argc, argv);
    try {
        return orrery::cli::runCommandLine(arguments, {program, std::cout, std::cerr});
    } catch (const std::bad_alloc&) {
        // A picture or a package too large for this machine: say so instead of aborting.
        return orrery::cli::fail(std::cerr, program, orrery::cli::kCannotWrite, "out of memory");
    }
}
