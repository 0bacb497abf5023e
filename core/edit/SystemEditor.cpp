#include "core/edit/SystemEditor.h"

#include "core/model/TextNumber.h"
#include "core/validate/Validators.h"

#include <utility>

namespace orrery {
namespace {

bool passes(PlanetKey key, std::string_view text) {
    switch (key) {
    case PlanetKey::name:
        return validateAddText(text);
    case PlanetKey::xvalue:
    case PlanetKey::yvalue:
    case PlanetKey::zvalue:
        return validatePosNegFloat(text);
    case PlanetKey::radius:
        return validatePosRadius(text);
    default:
        return false;
    }
}

bool inRange(std::optional<std::size_t> row, const PlanetList& planets) {
    return row && *row < planets.size();
}

} // namespace

template <typename SceneCall>
void SystemEditor::replaceRecord(std::size_t row, PlanetRecord record, PlanetKey key,
                                 SceneCall&& sceneCall) {
    EditStep step{.kind = EditKind::cell, .cell = key};
    const std::string& tsecs = record.tsecs;
    step.nodes.push_back({tsecs, scene_.capturePlanet(tsecs), {}});
    step.records.push_back({row, planets_.at(row), record});
    planets_.replace(row, record);
    sceneCall(planets_.at(row));
    step.nodes.back().after = scene_.capturePlanet(tsecs);
    history_.record(std::move(step));
}

void SystemEditor::updatePlanetNode(const PlanetRecord& record) {
    scene_.updatePlanet(record.tsecs, record.color, integerValue(record.styleindex),
                        integerValue(record.surfaceindex), record.xvalue, record.yvalue,
                        record.zvalue, record.radius);
}

CellOutcome SystemEditor::editText(std::optional<std::size_t> row, PlanetKey key,
                                   std::string_view text) {
    if (!passes(key, text))
        return CellOutcome::refused;
    if (!inRange(row, planets_))
        return CellOutcome::noRow;
    replaceRecord(*row, rebuilt(planets_.at(*row), key, std::string(text)), key,
                  [this](const PlanetRecord& record) { updatePlanetNode(record); });
    return CellOutcome::stored;
}

CellOutcome SystemEditor::editIndex(std::optional<std::size_t> row, PlanetKey key, long index) {
    if (!inRange(row, planets_))
        return CellOutcome::noRow;
    replaceRecord(*row, rebuilt(planets_.at(*row), key, std::to_string(index)), key,
                  [this](const PlanetRecord& record) { updatePlanetNode(record); });
    return CellOutcome::stored;
}

CellOutcome SystemEditor::editColor(std::optional<std::size_t> row, Color color) {
    if (!inRange(row, planets_))
        return CellOutcome::noRow;
    replaceRecord(*row, rebuiltWithColor(planets_.at(*row), color), PlanetKey::color,
                  [this](const PlanetRecord& record) { updatePlanetNode(record); });
    return CellOutcome::stored;
}

CellOutcome SystemEditor::editState(std::optional<std::size_t> row, int state) {
    if (!inRange(row, planets_))
        return CellOutcome::noRow;
    replaceRecord(
        *row, rebuilt(planets_.at(*row), PlanetKey::state, std::to_string(state)), PlanetKey::state,
        [this, state](const PlanetRecord& record) { scene_.updateStatus(record.tsecs, state); });
    return CellOutcome::stored;
}

std::optional<std::size_t> SystemEditor::planetClicked(std::string_view tsecs) {
    dragTsecs_ = tsecs;
    dragStart_ = scene_.capturePlanet(tsecs);
    dragKey_ = nextDragKey_--;
    const std::vector<std::size_t> rows = planets_.indicesOf(tsecs);
    if (tsecs == "0" || rows.empty())
        return std::nullopt;
    return rows.back();
}

std::optional<std::size_t> SystemEditor::planetDragged(std::string_view tsecs, std::string x,
                                                       std::string y, std::string z) {
    const std::optional<std::size_t> row = planets_.firstIndexOf(tsecs);
    if (!row)
        return std::nullopt;
    PlanetRecord moved =
        rebuiltWithPosition(planets_.at(*row), std::move(x), std::move(y), std::move(z));
    EditStep step{.kind = EditKind::drag, .mergeKey = dragTsecs_ == tsecs ? dragKey_ : 0};
    step.records.push_back({*row, planets_.at(*row), moved});
    planets_.replace(*row, std::move(moved));
    // The scene moved the nodes before telling: their state before is the one at the press.
    step.nodes.push_back({std::string(tsecs),
                          dragTsecs_ == tsecs ? dragStart_ : scene_.capturePlanet(tsecs),
                          scene_.capturePlanet(tsecs)});
    history_.record(std::move(step));
    return row;
}

std::size_t SystemEditor::createPlanet(std::string tsecs, std::string name) {
    EditStep step{.kind = EditKind::create};
    step.nodes.push_back({tsecs, scene_.capturePlanet(tsecs), {}});
    PlanetRecord record = newPlanetRecord(tsecs, std::move(name));
    const std::size_t row = planets_.size();
    step.records.push_back({row, std::nullopt, record});
    planets_.append(std::move(record));
    // The node gets the literal texts of a new planet, not the record's "0" and "24".
    scene_.createPlanet(tsecs, "0.0", "0.0", "0.0", "24.0");
    step.nodes.back().after = scene_.capturePlanet(tsecs);
    history_.record(std::move(step));
    return row;
}

void SystemEditor::appendPlanets(const std::vector<PlanetRecord>& planets) {
    if (planets.empty())
        return;
    EditStep step{.kind = EditKind::create};
    for (const PlanetRecord& record : planets) {
        const std::string& tsecs = record.tsecs;
        step.nodes.push_back({tsecs, scene_.capturePlanet(tsecs), {}});
        step.records.push_back({planets_.size(), std::nullopt, record});
        planets_.append(record);
        scene_.createPlanet2(tsecs, record.color, integerValue(record.styleindex),
                             integerValue(record.surfaceindex), record.xvalue, record.yvalue,
                             record.zvalue, record.radius);
        scene_.updateStatus(tsecs, integerValue(record.state));
        step.nodes.back().after = scene_.capturePlanet(tsecs);
    }
    history_.record(std::move(step));
}

bool SystemEditor::deletePlanet(std::optional<std::size_t> row) {
    if (!inRange(row, planets_))
        return false;
    const std::string tsecs = planets_.at(*row).tsecs;
    EditStep step{.kind = EditKind::remove};
    step.records.push_back({*row, planets_.at(*row), std::nullopt});
    step.nodes.push_back({tsecs, scene_.capturePlanet(tsecs), {}});
    planets_.remove(*row);
    scene_.deletePlanet(tsecs);
    history_.record(std::move(step));
    return true;
}

void SystemEditor::showAll(bool shown) {
    if (planets_.empty())
        return;
    EditStep step{.kind = EditKind::showAll};
    const std::string state = shown ? "1" : "0";
    for (std::size_t row = 0; row < planets_.size(); ++row) {
        const PlanetRecord& before = planets_.at(row);
        step.nodes.push_back({before.tsecs, scene_.capturePlanet(before.tsecs), {}});
        PlanetRecord after = rebuilt(before, PlanetKey::state, state);
        step.records.push_back({row, before, after});
        planets_.replace(row, std::move(after));
        scene_.updateStatus(planets_.at(row).tsecs, shown ? 1 : 0);
    }
    for (PlanetNodesChange& change : step.nodes)
        change.after = scene_.capturePlanet(change.tsecs);
    history_.record(std::move(step));
}

void SystemEditor::setCamera(double xFov, double yFov, double x, double y, double z,
                             bool orthographic, bool zRange, int mergeKey) {
    const CameraState before = scene_.cameraState();
    scene_.updateCamera(xFov, yFov, x, y, z, orthographic, zRange);
    if (scene_.cameraState() == before)
        return;
    history_.record({.kind = EditKind::camera,
                     .camera = std::pair(before, scene_.cameraState()),
                     .mergeKey = mergeKey});
}

void SystemEditor::recordLight(const LightState& before, int mergeKey) {
    if (scene_.lightState() == before)
        return;
    history_.record({.kind = EditKind::light,
                     .light = std::pair(before, scene_.lightState()),
                     .mergeKey = mergeKey});
}

void SystemEditor::setLightPosition(std::string_view x, std::string_view y, std::string_view z,
                                    int mergeKey) {
    const LightState before = scene_.lightState();
    scene_.updateLight(x, y, z);
    recordLight(before, mergeKey);
}

void SystemEditor::setLightColor(Color color) {
    const LightState before = scene_.lightState();
    scene_.updateLightColor(color);
    recordLight(before, 0);
}

void SystemEditor::setCameraDefault() {
    setCamera(45.0, 45.0, 0.0, 0.0, 500.0, true, true);
}

void SystemEditor::setLightDefault() {
    const LightState before = scene_.lightState();
    scene_.updateLight("0.0", "0.0", "100.0");
    scene_.updateLightColor(kWhite);
    recordLight(before, 0);
}

void SystemEditor::recordDocument(const DocumentSettings& before, EditKind kind, int mergeKey) {
    history_.record({.kind = kind, .document = std::pair(before, document_), .mergeKey = mergeKey});
}

void SystemEditor::setBackground(long index) {
    const DocumentSettings before = document_;
    document_.background = index;
    recordDocument(before, EditKind::background, 0);
}

void SystemEditor::setDocumentSize(std::string width, std::string height, int mergeKey) {
    const DocumentSettings before = document_;
    document_.width = std::move(width);
    document_.height = std::move(height);
    recordDocument(before, EditKind::size, mergeKey);
}

} // namespace orrery
