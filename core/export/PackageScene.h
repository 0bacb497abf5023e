#pragma once

#include "core/model/PlanetList.h"
#include "core/package/ProjectDocument.h"
#include "core/scene/SceneView.h"

namespace orrery {

// The document area at first start, which an opened package keeps when its own size fails
// its check.
inline constexpr int kFirstDocumentWidth = 960;
inline constexpr int kFirstDocumentHeight = 540;

struct DocumentSize {
    int width = kFirstDocumentWidth;
    int height = kFirstDocumentHeight;
    friend bool operator==(const DocumentSize&, const DocumentSize&) = default;
};

// What opening a package in a fresh window shows, and so what its export writes:
// the document size when both values pass their checks, else the first-start size.
DocumentSize packageDocumentSize(const OpenedProject& project);
// The background when it passes its check, else the fresh window's transparent 0.
long packageBackground(const OpenedProject& project);

// One node per planet of the package, as createPlanet2 builds it, apart from any scene: the
// window makes them on the worker that reads the package, with their depth range seen from
// the package's camera when it passes. Opening does not hide planets whose state is "0";
// they show until their check box is next switched, and the export draws them too.
SceneNodeBatch packagePlanetNodes(const OpenedProject& project);
// What opening a package does to a scene: the camera when all five camera values pass, the
// light position when all three pass, the light colour, and the planets replaced by
// `planets` (packagePlanetNodes of the package's). Returns the planets taken away.
SceneNodeBatch applyPackageToScene(SceneView& view, const OpenedProject& project,
                                   SceneNodeBatch planets);
// The same on a fresh scene view, which also takes the package's document size.
void loadPackageScene(SceneView& view, const OpenedProject& project);

// What saving writes for a system: the planets, the document size fields' texts, the
// background, the scene's camera settings and light position, and the light colour.
ProjectDocument projectDocument(const SceneView& view, const PlanetList& planets, std::string width,
                                std::string height, long background, Color lightColor);

} // namespace orrery
