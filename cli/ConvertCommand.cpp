#include "cli/ExitStatus.h"
#include "cli/FileText.h"
#include "cli/Verbs.h"
#include "core/package/JsonLayout.h"
#include "core/package/PackageJson.h"
#include "core/package/ProjectPackage.h"
#include "core/package/SystemSource.h"
#include "imageio/AtomicWrite.h"

namespace orrery::cli {
namespace {

// 100,000 planets take about 25 MB of JSON.
constexpr std::size_t kMaxJsonBytes = std::size_t{256} << 20;

int jsonToPackage(const std::string& in, const std::string& out, const Streams& io) {
    std::string text;
    std::string error;
    if (!readFileText(in, kMaxJsonBytes, text, error))
        return fail(io.err, io.program, kBadInput, in + ": " + error);
    const std::optional<ProjectDocument> document = documentFromJsonText(text, error);
    if (!document)
        return fail(io.err, io.program, kBadInput, in + ": " + error);
    if (!writeProjectPackage(out, *document, error))
        return fail(io.err, io.program, kCannotWrite, error);
    return kDone;
}

// A package, or a picture that carries its system.
int systemToJson(const std::string& in, const std::string& out, const Streams& io) {
    OpenedProject project;
    std::string error;
    if (!readSystem(in, project, error))
        return fail(io.err, io.program, kBadInput, error);
    const std::string text = layOutJson(packageJson(project, false));
    error = imageio::writeFileAtomically(
        out, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (!error.empty())
        return fail(io.err, io.program, kCannotWrite, out + ": " + error);
    return kDone;
}

} // namespace

int convertCommand(const std::vector<std::string>& arguments, const Streams& io) {
    if (arguments.size() != 2)
        return fail(io.err, io.program, kBadUsage, "usage: convert IN OUT");
    const std::string& in = arguments[0];
    const std::string& out = arguments[1];
    const std::string from = lowerExtension(in);
    const std::string to = lowerExtension(out);
    if (from == ".json" && to == ".kvx")
        return jsonToPackage(in, out, io);
    if ((from == ".kvx" || isSystemPictureName(in)) && to == ".json")
        return systemToJson(in, out, io);
    return fail(io.err, io.program, kBadUsage,
                "convert turns a .json file into a .kvx package, a .kvx package into a .json "
                "file, or a picture of ours into a .json file, not " +
                    in + " into " + out);
}

} // namespace orrery::cli
