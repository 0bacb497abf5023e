#include "cli/ExitStatus.h"
#include "cli/Verbs.h"
#include "core/package/JsonLayout.h"
#include "core/package/PackageJson.h"
#include "core/package/SystemSource.h"

namespace orrery::cli {

int infoCommand(const std::vector<std::string>& arguments, const Streams& io) {
    if (arguments.size() != 1 || arguments.front().starts_with('-'))
        return fail(io.err, io.program, kBadUsage, "usage: info PACKAGE.kvx|PICTURE");
    OpenedProject project;
    std::string error;
    if (!readSystem(arguments.front(), project, error))
        return fail(io.err, io.program, kBadInput, error);
    io.out << layOutJson(packageJson(project, true));
    if (!io.out.flush())
        return fail(io.err, io.program, kCannotWrite, "standard output: cannot write");
    return kDone;
}

} // namespace orrery::cli
