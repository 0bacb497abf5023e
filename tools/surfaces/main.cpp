// Writes the surface images into a folder: Surface001.png to Surface048.png at full size,
// thumbs/SurfaceNNN.png for the surface menu, and contact-sheet.png for review.
#include "core/styles/StyleImages.h"
#include "core/styles/SurfaceNames.h"
#include "tools/surfaces/ContactSheet.h"
#include "tools/surfaces/PngFile.h"
#include "tools/surfaces/SurfaceGenerator.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <thread>

namespace {

int fail(const QString& message) {
    std::fprintf(stderr, "orrery-surfaces: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    // The labels of the contact sheet need fonts, and fonts need a platform; a build
    // machine may have no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2)
        return fail(QStringLiteral("usage: orrery-surfaces OUTPUT-FOLDER"));
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(QStringLiteral("thumbs")))
        return fail(QStringLiteral("%1: cannot create the folder").arg(folder.path()));

    namespace surfaces = orrery::surfaces;
    const unsigned threads = std::max(1u, std::thread::hardware_concurrency());
    const std::vector<orrery::Image> pictures =
        surfaces::renderAllSurfaces(surfaces::kSurfaceWidth, surfaces::kSurfaceHeight, threads);

    std::vector<orrery::Image> previews;
    QStringList labels;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const long number = static_cast<long>(i) + 1;
        const QString file = QString::fromStdString(orrery::surfaceName(number) + ".png");
        const std::optional<orrery::Image> thumbnail = orrery::imageResize128(pictures[i]);
        if (!thumbnail)
            return fail(QStringLiteral("%1: the surface came out empty").arg(file));
        QString error = surfaces::writePng(surfaces::imageView(pictures[i]), folder.filePath(file));
        // The surface menu decodes all 48 thumbnails when it opens; stored (uncompressed)
        // data decodes in half the time, and the files are only 32 KB each.
        if (error.isEmpty())
            error = surfaces::writePng(surfaces::imageView(*thumbnail),
                                       folder.filePath(QStringLiteral("thumbs/") + file),
                                       surfaces::PngCompression::Stored);
        if (!error.isEmpty())
            return fail(error);
        previews.push_back(*orrery::imageResize(pictures[i], 256));
        labels << QStringLiteral("%1  %2").arg(number).arg(
            QString::fromStdString(surfaces::surfaceRecipes()[i].name));
    }
    const QString error = surfaces::writePng(surfaces::contactSheet(previews, labels),
                                             folder.filePath(QStringLiteral("contact-sheet.png")));
    return error.isEmpty() ? 0 : fail(error);
}
