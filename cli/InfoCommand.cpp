#include "cli/ExitStatus.h"
#include "cli/JsonLayout.h"
#include "cli/PackageJson.h"
#include "cli/Verbs.h"
#include "core/package/ProjectPackage.h"

namespace orrery::cli {

int infoCommand(const std::vector<std::string>& arguments, const Streams& io) {
    if (arguments.size() != 1 || arguments.front().starts_with('-'))
        return fail(io.err, io.program, kBadUsage, "usage: info PACKAGE.kvx");
    OpenedProject project;
    std::string error;
    if (!readProjectPackage(arguments.front(), project, error))
        return fail(io.err, io.program, kBadInput, error);
    io.out << layOutJson(packageJson(project, true));
    if (!io.out.flush())
        return fail(io.err, io.program, kCannotWrite, "standard output: cannot write");
    return kDone;
}

} // namespace orrery::cli
