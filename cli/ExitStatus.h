#pragma once

#include <ostream>
#include <string_view>

namespace orrery::cli {

// What the command line answers the shell.
enum ExitStatus : int {
    kDone = 0,
    kBadUsage = 1,   // unknown verb or option, a number out of range, a missing argument
    kBadInput = 2,   // the input file is missing or not what it should be
    kCannotWrite = 3 // the output cannot be written
};

// Every failure is one line on standard error, "orrery: <what and where>".
inline int fail(std::ostream& err, std::string_view program, ExitStatus status,
                std::string_view message) {
    err << program << ": " << message << '\n';
    return status;
}

} // namespace orrery::cli
