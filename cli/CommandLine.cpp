#include "cli/ExitStatus.h"
#include "cli/Verbs.h"

namespace orrery::cli {
namespace {

constexpr std::string_view kUsage =
    R"(usage:
  orrery [PACKAGE.kvx ...]               open the window; the first package is opened
  orrery info PACKAGE.kvx                print the package as JSON
  orrery info PICTURE                    print the system a picture of ours carries
  orrery render PACKAGE.kvx -o FILE      render without a display and write FILE
         [--scale S]                     backing scale factor (default 1)
         [--include-background]          lay the picture over the background colour
         [--quality N]                   JPEG / JPEG 2000 compression 0-100 (default 85)
  orrery convert IN OUT                  .json -> .kvx or .kvx -> .json
                                         or PICTURE -> .json (the system it carries)
  orrery scene PACKAGE.kvx -o FILE       the scene as glTF 2.0 for 3D tools (.glb or .gltf)
  orrery animate PACKAGE.kvx -o FILE     the system turning, one loop, without a display
         [--frames N]                    frames in the loop, 2-720 (default 48)
         [--fps F]                       frames per second, 1-60 (default 24)
         [--scale S] [--include-background]
         [--light-orbit]                 the light circles the scene once a loop
         [--spin same|by-size]           every planet turns once, or the smaller ones faster
         [--quality N]                   WebP (100: lossless) and video quality (default 85)
         [--gif-palette frame|loop]      one GIF palette a frame (default) or for the loop
         [--range FIRST-LAST]            only these frames of the loop, into a folder
  orrery --help | --version

The picture type of render follows FILE's extension: .bmp .gif .jpg .jpeg .jp2 .png .tif
.tiff; a PNG, TIFF or JPEG carries the system it shows, and opens again as that system.
animate writes .gif .webp .webm .mp4, .png for a sprite sheet with its .json atlas, or a
folder of PNG frames for a FILE ending in /. Exit status: 0 done; 1 bad usage; 2 input
missing or invalid; 3 output cannot be written.
)";

} // namespace

bool isCommandLine(const std::vector<std::string>& arguments) {
    if (arguments.empty())
        return false;
    const std::string& first = arguments.front();
    return first == "info" || first == "render" || first == "convert" || first == "animate" ||
           first == "scene" ||
           (first.size() > 1 && first.front() == '-');
}

int runCommandLine(const std::vector<std::string>& arguments, const Streams& io) {
    const std::string& verb = arguments.front();
    const std::vector<std::string> rest(arguments.begin() + 1, arguments.end());
    if (verb == "info")
        return infoCommand(rest, io);
    if (verb == "render")
        return renderCommand(rest, io);
    if (verb == "convert")
        return convertCommand(rest, io);
    if (verb == "animate")
        return animateCommand(rest, io);
    if (verb == "scene")
        return sceneCommand(rest, io);
    if (verb == "--help" || verb == "-h") {
        io.out << kUsage;
        return kDone;
    }
    if (verb == "--version") {
        io.out << io.program << ' ' << ORRERY_VERSION << '\n';
        return kDone;
    }
    return fail(io.err, io.program, kBadUsage, "unknown option " + verb + "; see --help");
}

} // namespace orrery::cli
