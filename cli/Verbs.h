#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

// The verbs of the `orrery` command line. Each takes the arguments after the verb, writes
// its result on `out` and each failure as one line on `err`, and returns the exit status.
namespace orrery::cli {

struct Streams {
    std::string_view program; // how failures are signed, "orrery"
    std::ostream& out;
    std::ostream& err;
};

int infoCommand(const std::vector<std::string>& arguments, const Streams& io);
int renderCommand(const std::vector<std::string>& arguments, const Streams& io);
int convertCommand(const std::vector<std::string>& arguments, const Streams& io);
int animateCommand(const std::vector<std::string>& arguments, const Streams& io);
int sceneCommand(const std::vector<std::string>& arguments, const Streams& io);

// True when the arguments name a verb or an option; anything else (nothing at all, or
// package paths) is for the window.
bool isCommandLine(const std::vector<std::string>& arguments);
// Runs the verb or option that the first argument names.
int runCommandLine(const std::vector<std::string>& arguments, const Streams& io);

} // namespace orrery::cli
