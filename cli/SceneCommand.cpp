#include "cli/ExitStatus.h"
#include "cli/FileText.h"
#include "cli/Verbs.h"
#include "core/export/ExportChoices.h"
#include "core/export/PackageScene.h"
#include "core/export/SceneModel.h"
#include "core/package/SystemSource.h"
#include "imageio/SurfaceLibrary.h"
#include "scene3d/GltfScene.h"

namespace orrery::cli {

int sceneCommand(const std::vector<std::string>& arguments, const Streams& io) {
    if (arguments.size() != 3 || arguments[1] != "-o" || arguments[0].starts_with('-'))
        return fail(io.err, io.program, kBadUsage, "usage: scene PACKAGE.kvx -o FILE.glb|.gltf");
    const std::string& input = arguments[0];
    const std::string& output = arguments[2];
    const std::string extension = lowerExtension(output);
    if (extension != ".glb" && extension != ".gltf")
        return fail(io.err, io.program, kBadUsage,
                    output + ": a scene is written as .glb or .gltf, not " +
                        (extension.empty() ? std::string("without an extension") : extension));
    OpenedProject project;
    std::string error;
    if (!readSystem(input, project, error))
        return fail(io.err, io.program, kBadInput, error);
    if (!canExport(project.planets))
        return fail(io.err, io.program, kBadInput,
                    input + ": no planet is shown, so there is nothing to export");

    SceneView view;
    loadPackageScene(view, project);
    const DocumentSize size = packageDocumentSize(project);
    SceneModel model = sceneModel(view, project.planets, size.height);
    model.aspectRatio = static_cast<double>(size.width) / size.height;
    const imageio::SurfaceLibrary surfaces;
    error = scene3d::writeGltfScene(model, output, [&surfaces](const std::string& name) {
        return surfaces.surfaceNamed(name);
    });
    if (!error.empty())
        return fail(io.err, io.program, kCannotWrite, output + ": " + error);
    return kDone;
}

} // namespace orrery::cli
